#include "host/folder/host_folder.h"

#include <sqlite3.h>

#include <algorithm>
#include <fstream>
#include <map>

#include "host/errors.h"
#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

namespace fs = std::filesystem;

class AFolder : public ::testing::Test {
  protected:
    // Every file below the folder with its content.
    std::map<std::string, std::string> content() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
            std::string text;
            if (entry.is_regular_file()) {
                std::ifstream file(entry.path(), std::ios::binary);
                text.assign(std::istreambuf_iterator<char>(file), {});
            }
            files[paths::to_text(entry.path())] = text;
        }
        return files;
    }
    // The refusal of a log-on, which leaves everything on disk as it is.
    std::string refusal(const std::string& path) {
        const auto before = content();
        const AutomationError error = error_of([&] { Connector().Logon(path, "chef", ""); });
        EXPECT_EQ(content(), before);
        EXPECT_EQ(error.description().find('\n'), std::string::npos);
        return error.description();
    }
    void write(const std::string& name, std::string_view text) {
        std::ofstream(paths::to_system(folder.path(name)), std::ios::binary) << text;
    }
    TemporaryFolder folder;
};

TEST_F(AFolder, HoldsSettingsDatabasePicturesAndAttachments) {
    const std::string path = folder.path("büro");
    create_folder(path, {.sample = true});
    std::set<std::string> names;
    for (const files::Entry& entry : files::entries(path)) {
        names.insert(entry.name);
    }
    EXPECT_EQ(names, (std::set<std::string>{"Anlagen", "corvanta.db", "corvanta.ini", "pic.obj"}));
    Connector connector;
    connector.Logon(path, "chef", "");
    EXPECT_FALSE(connector.GetRecordset("SELECT * FROM AD", {}).at_end());
}

TEST_F(AFolder, IsNotMadeOverADatabase) {
    create_folder(folder.path("büro"));
    const auto before = content();
    const AutomationError error = error_of([&] { create_folder(folder.path("büro")); });
    EXPECT_NE(error.description().find("enthält schon eine Datenbank"), std::string::npos);
    EXPECT_EQ(content(), before);
}

TEST_F(AFolder, LeavesNothingBehindWhenItCannotBeMade) {
    const AutomationError error = error_of([&] { create_folder(folder.path("a/b/c")); });
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(HostError::Folder));
    EXPECT_TRUE(content().empty());
}

TEST_F(AFolder, IsRefusedInOneSentenceWhereItIsNone) {
    EXPECT_EQ(refusal(folder.path("fehlt")),
              "Den Ordner '" + folder.path("fehlt") + "' gibt es nicht.");
    EXPECT_NE(refusal(folder.path()).find("kein Corvanta-Ordner"), std::string::npos);
    write("corvanta.ini", "");
    EXPECT_NE(refusal(folder.path()).find("fehlt die Datenbank corvanta.db"), std::string::npos);
    write("corvanta.db", std::string(5000, 'x'));
    EXPECT_NE(refusal(folder.path()).find("beschädigt"), std::string::npos);
    write("corvanta.db", "");
    EXPECT_NE(refusal(folder.path()).find("keine Corvanta-Datenbank"), std::string::npos);
}

TEST_F(AFolder, OfANewerVersionIsRefused) {
    const std::string path = folder.path("büro");
    create_folder(path);
    sqlite3* database = nullptr;
    sqlite3_open((path + "/corvanta.db").c_str(), &database);
    sqlite3_exec(database, "UPDATE Version SET Version = 99", nullptr, nullptr, nullptr);
    sqlite3_close(database);
    EXPECT_NE(refusal(path).find("neueren Version"), std::string::npos);
}

TEST_F(AFolder, MayBeNamedWithEitherSlash) {
    std::string path = folder.path("büro");
    create_folder(path);
    std::ranges::replace(path, '/', '\\');
    Connector().Logon(path, "chef", "");
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
