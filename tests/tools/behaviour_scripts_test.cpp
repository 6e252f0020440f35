#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/tools/phone_list.h"
#include "cvdeveloper/tools/salutation_list.h"
#include "cvdeveloper/tools/tools.h"
#include "platform/text.h"
#include "support/standalone_application.h"

namespace cvdeveloper {
namespace {

std::string unescaped(std::string text) {
    text = replace_all(text, "\\t", "\t");
    text = replace_all(text, "\\r", "\r");
    return replace_all(text, "\\n", "\n");
}

ObjectRef new_object(const std::string& name) {
    if (name == "clsPhoneList") {
        return ObjectRef(make_object<clsPhoneList>());
    }
    if (name == "clsSalutationList") {
        return ObjectRef(make_object<clsSalutationList>());
    }
    if (name == "clsTools") {
        return ObjectRef(make_object<clsTools>());
    }
    return ObjectRef(make_object<Application>());
}

bool has(const std::string& text, char sign) {
    return text.find(sign) != std::string::npos;
}

InvokeKind invoke_kind(const std::string& kind) {
    if (kind == "put") {
        return InvokeKind::Put;
    }
    return kind == "get" ? InvokeKind::Get : InvokeKind::Method;
}

class BehaviourScripts : public StandaloneApplicationTest {
  protected:
    BehaviourScripts() : StandaloneApplicationTest(true) {}

    // Goes through a script; the number of its steps.
    int run(const std::string& name) {
        std::ifstream script(CVDEVELOPER_SOURCE_DIR "/tests/tools/" + name);
        int steps = 0;
        for (std::string line; std::getline(script, line);) {
            if (line.empty() || line.starts_with('#')) {
                continue;
            }
            std::string expected = line;
            std::string words = take_first(expected, " =>");
            if (expected.starts_with(' ')) {
                expected.erase(0, 1);
            }
            const std::string kind = take_first(words, " ");
            EXPECT_EQ(outcome(kind, words), unescaped(expected)) << line;
            ++steps;
        }
        return steps;
    }

  private:
    std::string outcome(std::string kind, std::string words) {
        if (kind == "new" || kind == "connect") {
            target_ = kind == "new" ? new_object(words) : ObjectRef(app);
            return "";
        }
        std::string variable;
        if (kind == "let" || kind == "set") {
            variable = take_first(words, " ");
            kind = take_first(words, " ");
        }
        try {
            Variant result = value(kind, words);
            if (variable.empty()) {
                return joined_text(std::move(result));
            }
            variables_[variable] = std::move(result);
            return "";
        } catch (const AutomationError& error) {
            return "error " + std::to_string(error.number());
        }
    }

    Variant value(const std::string& kind, std::string words) {
        if (kind == "text") {
            return inserted(words);
        }
        bool more = has(words, '|');
        std::string path = take_first(words, "|");
        const ObjectRef owner = take_owner(path);
        std::vector<Variant> arguments;
        std::map<std::size_t, std::string> references;
        while (more) {
            more = has(words, '|');
            const std::string word = take_first(words, "|");
            if (word.starts_with('&') && variables_.contains(word.substr(1))) {
                references[arguments.size()] = word.substr(1);
            }
            arguments.push_back(argument(word));
        }
        if (kind == "out") {
            arguments.resize(4, Variant(""));
            owner->invoke(path, InvokeKind::Method, {.values = arguments, .by_reference = 14});
            return to_text(arguments[1]) + "|" + to_text(arguments[2]) + "|" +
                   to_text(arguments[3]);
        }
        std::uint32_t by_reference = 0;
        for (const auto& [index, name] : references) {
            by_reference |= 1U << index;
        }
        Variant result = owner->invoke(path, invoke_kind(kind),
                                       {.values = arguments, .by_reference = by_reference});
        for (const auto& [index, name] : references) {
            variables_[name] = arguments[index];
        }
        return result;
    }

    // Follows a path to its last name, which is left there.
    ObjectRef take_owner(std::string& path) {
        ObjectRef owner = target_;
        if (path.starts_with('$')) {
            owner = to_object(variables_.at(take_first(path, ".").substr(1)));
        }
        while (has(path, '.')) {
            owner = to_object(owner->invoke(take_first(path, "."), InvokeKind::Get, {}));
        }
        return owner;
    }

    Variant argument(const std::string& word) {
        const bool whole = word.starts_with('$') || word.starts_with('&');
        const auto variable = variables_.find(whole ? word.substr(1) : "");
        return variable != variables_.end() ? variable->second : Variant(inserted(word));
    }

    std::string inserted(const std::string& words) {
        std::string rest = unescaped(words);
        std::string text = take_first(rest, "$");
        while (!rest.empty()) {
            std::string after = take_first(rest, "$");
            std::size_t end = 0;
            while (end < after.size() && after[end] >= 'a' && after[end] <= 'z') {
                ++end;
            }
            text += joined_text(Variant(variables_.at(after.substr(0, end)))) + after.substr(end);
        }
        return text;
    }

    ObjectRef target_;
    std::map<std::string, Variant> variables_;
};

TEST_F(BehaviourScripts, TheListsGiveWhatStandsBesideEachOperation) {
    EXPECT_GT(run("list_script.txt"), 50);
}

TEST_F(BehaviourScripts, ToolsAndRecordsGiveWhatStandsBesideEachOperation) {
    EXPECT_GT(run("behaviour_script.txt"), 120);
}

}  // namespace
}  // namespace cvdeveloper
