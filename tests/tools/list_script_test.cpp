#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/tools/phone_list.h"
#include "cvdeveloper/tools/salutation_list.h"
#include "platform/text.h"

namespace cvdeveloper {
namespace {

std::string unescaped(std::string text) {
    text = replace_all(text, "\\t", "\t");
    text = replace_all(text, "\\r", "\r");
    return replace_all(text, "\\n", "\n");
}

std::vector<Variant> arguments_of(std::string list) {
    std::vector<Variant> arguments;
    std::size_t bars = static_cast<std::size_t>(std::ranges::count(list, '|'));
    for (; bars > 0; --bars) {
        arguments.emplace_back(unescaped(take_first(list, "|")));
    }
    arguments.emplace_back(unescaped(list));
    return arguments;
}

std::string outcome(Object& list, const std::string& kind, std::string words) {
    const bool has_arguments = words.find('|') != std::string::npos;
    const std::string name = take_first(words, "|");
    std::vector<Variant> arguments;
    if (has_arguments) {
        arguments = arguments_of(words);
    }
    try {
        if (kind == "out") {
            arguments.resize(4, Variant(""));
            list.invoke(name, InvokeKind::Method, {.values = arguments, .by_reference = 14});
            return to_text(arguments[1]) + "|" + to_text(arguments[2]) + "|" +
                   to_text(arguments[3]);
        }
        const InvokeKind how = kind == "put"   ? InvokeKind::Put
                               : kind == "get" ? InvokeKind::Get
                                               : InvokeKind::Method;
        return to_text(list.invoke(name, how, {.values = arguments}));
    } catch (const AutomationError& error) {
        return "error " + std::to_string(error.number());
    }
}

TEST(ListScript, GivesWhatStandsBesideEachOperation) {
    std::ifstream script(CVDEVELOPER_SOURCE_DIR "/tests/tools/list_script.txt");
    ObjectRef list;
    int steps = 0;
    for (std::string line; std::getline(script, line);) {
        if (line.empty() || line.starts_with('#')) {
            continue;
        }
        std::string rest = line;
        const std::string kind = take_first(rest, " ");
        if (kind == "new") {
            list = rest == "clsPhoneList" ? ObjectRef(make_object<clsPhoneList>())
                                          : ObjectRef(make_object<clsSalutationList>());
            continue;
        }
        const std::string words = take_first(rest, " =>");
        const std::string expected = rest.starts_with(' ') ? rest.substr(1) : rest;
        EXPECT_EQ(outcome(*list, kind, words), unescaped(expected)) << line;
        ++steps;
    }
    EXPECT_GT(steps, 50);
}

}  // namespace
}  // namespace cvdeveloper
