#include "cvdeveloper/data/diagnostic_log.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "cvdeveloper/application.h"
#include "cvdeveloper/automation/class_registry.h"
#include "support/recording_host.h"
#include "support/temporary_folder.h"

namespace cvdeveloper {
namespace {

// The standard component: writes down what is asked of it, and may cut a folder to something else.
class StandardUtilDouble final : public Object, public host::StandardUtil {
  public:
    StandardUtilDouble(Lines& calls, std::string temporary, std::string cut)
        : calls_(calls), temporary_(std::move(temporary)), cut_(std::move(cut)) {}

    Variant invoke(std::string_view, InvokeKind, Arguments) override { return {}; }
    [[nodiscard]] std::string_view class_name() const noexcept override { return "cUtil"; }
    std::string GetTempPath() override {
        calls_.emplace_back("GetTempPath");
        return temporary_;
    }
    void CutRight(std::string& text, std::string_view end) override {
        calls_.push_back("CutRight " + text);
        if (!cut_.empty()) {
            text = cut_;
        } else if (text.ends_with(end)) {
            text.resize(text.size() - end.size());
        }
    }

  private:
    Lines& calls_;
    std::string temporary_;
    std::string cut_;
};

class DiagnosticLogTest : public ::testing::Test {
  protected:
    DiagnosticLogTest() {
        register_class("clqexStdC10.cUtil", [this] {
            return make_object<StandardUtilDouble>(calls, temporary.text(), cut);
        });
    }
    ~DiagnosticLogTest() override { register_class("clqexStdC10.cUtil", nullptr); }

    // The messages in a folder's log.
    static Lines messages(const TemporaryFolder& place, const char* name = "cvDeveloper.log") {
        Lines found;
        std::string text = place.read(name);
        while (!text.empty()) {
            const std::string line = text.substr(0, text.find("\r\n"));
            found.push_back(line.substr(line.find(" - ") + 3));
            text.erase(0, line.size() + 2);
        }
        return found;
    }
    void log(const std::string& path, const std::string& message) {
        app->put_LogPath(path);
        app->DoLog("Anruf", message);
    }

    TemporaryFolder folder;
    TemporaryFolder temporary;
    Lines calls;
    std::string cut;
    Ref<Application> app = make_object<Application>();
};

TEST_F(DiagnosticLogTest, AppendsToTheLogOfItsFolder) {
    log(folder.text(), "eins");
    log(folder.text() + "\\", "zwei");
    EXPECT_EQ(messages(folder), (Lines{"Anruf : eins", "Anruf : zwei"}));
    EXPECT_EQ(calls, (Lines{"CutRight " + folder.text(), "CutRight " + folder.text() + "\\"}));
}

TEST_F(DiagnosticLogTest, GoesToTheTemporaryFolderWhereItsOwnIsNone) {
    folder.write("datei", "");
    for (const std::string& path : {std::string(), folder.file("fehlt"), folder.file("datei")}) {
        calls.clear();
        log(path, path.empty() ? "leer" : path);
        EXPECT_EQ(calls, (Lines{"GetTempPath", "CutRight " + temporary.text()})) << path;
    }
    EXPECT_EQ(messages(temporary), (Lines{"Anruf : leer", "Anruf : " + folder.file("fehlt"),
                                          "Anruf : " + folder.file("datei")}));
}

TEST_F(DiagnosticLogTest, MakesALogAgainThatSomebodyHasTakenAway) {
    log(folder.text(), "eins");
    std::filesystem::remove(folder.path() / "cvDeveloper.log");
    log(folder.text(), "zwei");
    EXPECT_EQ(messages(folder), Lines{"Anruf : zwei"});
    std::filesystem::rename(folder.path() / "cvDeveloper.log", folder.path() / "alt.log");
    log(folder.text(), "drei");
    EXPECT_EQ(messages(folder), Lines{"Anruf : drei"});
    EXPECT_EQ(messages(folder, "alt.log"), Lines{"Anruf : zwei"});
}

TEST_F(DiagnosticLogTest, GoesWhereTheComponentSays) {
    log(folder.text(), "eins");
    cut = temporary.text();
    log(folder.text(), "zwei");
    EXPECT_EQ(messages(folder), Lines{"Anruf : eins"});
    EXPECT_EQ(messages(temporary), Lines{"Anruf : zwei"});
}

TEST_F(DiagnosticLogTest, StaysInItsFolderWithoutTheComponent) {
    register_class("clqexStdC10.cUtil", nullptr);
    log(folder.text(), "eins");
    log(folder.text(), "zwei");
    EXPECT_EQ(messages(folder), (Lines{"Anruf : eins", "Anruf : zwei"}));
}

TEST_F(DiagnosticLogTest, LosesALineThatCannotBeWritten) {
    std::filesystem::create_directory(folder.path() / "cvDeveloper.log");
    log(folder.text(), "eins");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path() / "cvDeveloper.log"));
    EXPECT_FALSE(temporary.has("cvDeveloper.log"));
}

}  // namespace
}  // namespace cvdeveloper
