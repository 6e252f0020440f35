#include "host/services/blob.h"

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "host/host_test.h"
#include "support/temp_setting.h"

namespace cvdeveloper::standalone::testing {
namespace {

constexpr std::int32_t content_kind = 6;

class BlobRights : public HostTest {
  protected:
    [[nodiscard]] host::Blob& blob() const { return dynamic_cast<host::Blob&>(*connector->Blob()); }
    std::string write(const std::string& name, const std::string& content) const {
        std::ofstream(folder.path(name), std::ios::binary) << content;
        return folder.path(name);
    }

  private:
    const TempSetting setting_{folder.path().c_str()};
};

TEST_F(BlobRights, OpenedFileIsForTheUsersEyesOnly) {
    const std::string key = blob().SaveBlobFile(write("a.png", "bild"), "OWNER", content_kind);
    const std::filesystem::path opened = blob().OpenBlobFile(key, "OWNER", content_kind);
    struct stat status {};
    ASSERT_EQ(stat(opened.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    ASSERT_EQ(stat(opened.parent_path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(BlobRights, FullDiskIsError61AndLeavesNothing) {
    const std::string path = write("groß", std::string(3'000'000, 'x'));
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{1'500'000, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const AutomationError error =
        error_of([&] { blob().SaveBlobFile(path, "OWNER", content_kind); });
    setrlimit(RLIMIT_FSIZE, &before);
    static_cast<void>(std::signal(SIGXFSZ, old_handler));
    EXPECT_EQ(error.number(), 61);
    EXPECT_NE(error.description().find(path), std::string::npos) << error.description();
    EXPECT_TRUE(std::filesystem::is_empty(host_path() + "/Anlagen"));
    EXPECT_TRUE(blob().GetBlobInfos("OWNER").at_end());
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
