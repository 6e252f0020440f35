#include <filesystem>

#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

namespace fs = std::filesystem;

TEST(AFolderOnDisk, IsMadeForItsOwnerAlone) {
    const TemporaryFolder folder;
    const fs::path path = folder.path("büro");
    create_folder(path.string(), {.sample = true});
    for (const char* name : {"", "pic.obj", "Anlagen"}) {
        EXPECT_EQ(fs::status(path / name).permissions(), fs::perms::owner_all) << name;
    }
    Connector connector;
    connector.Logon(path.string(), "chef", "");
    EXPECT_FALSE(connector.GetRecordset("SELECT * FROM AD", {}).at_end());
    for (const char* name : {"corvanta.ini", "corvanta.db", "corvanta.db-wal", "corvanta.db-shm"}) {
        EXPECT_EQ(fs::status(path / name).permissions(),
                  fs::perms::owner_read | fs::perms::owner_write)
            << name;
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
