#include "platform/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "platform/file_operations.h"
#include "support/expect_error.h"
#include "support/temp_setting.h"
#include "support/temporary_folder.h"

namespace cvdeveloper::files {
namespace {

namespace fs = std::filesystem;

TEST(Files, CopiesKeepTheirRights) {
    const TemporaryFolder folder;
    folder.write("a", "text");
    fs::permissions(folder.file("a"), fs::perms::owner_read | fs::perms::owner_write);
    copy_file(folder.file("a"), folder.file("b"), false);
    EXPECT_EQ(fs::status(folder.file("b")).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

// A link into its own tree would copy for ever.
TEST(Files, LinksAreCopiedAsLinksAndDeletedWithoutWhatTheyLeadTo) {
    const TemporaryFolder folder;
    folder.write("a/x", "1");
    folder.write("outside/y", "2");
    fs::create_directory_symlink("..", folder.file("a/loop"));
    fs::create_directory_symlink(folder.file("outside"), folder.file("a/out"));
    copy_folders(folder.file("a"), folder.file("b"), false);
    EXPECT_TRUE(fs::is_symlink(folder.file("b/loop")));
    EXPECT_EQ(total_size(folder.file("b")), 1);
    remove_folders(folder.file("a"));
    EXPECT_FALSE(folder.has("a"));
    EXPECT_EQ(folder.read("outside/y"), "2");
}

TEST(Files, NamesThatAreTooLongAreError52) {
    const TemporaryFolder folder;
    expect_error_number(52, [&] { create_folder(folder.file(std::string(300, 'x'))); });
}

TEST(Files, AFullDiskIsError61) {
    expect_error(61, "", "Datenträger voll (/dev/full)",
                 [] { OutputFile("/dev/full", OutputFile::Mode::Append).write("x"); });
}

TEST(Files, TheTemporaryFolderIsTmpdirWhereThatIsAFolder) {
    const TemporaryFolder folder;
    const TempSetting setting(folder.text().c_str());
    EXPECT_EQ(temp_folder(), folder.text());
}

TEST(Files, WithoutTmpdirTheTemporaryFolderIsForTheUsersEyesOnly) {
    for (const char* value : {static_cast<const char*>(nullptr), "/there/is/no/such/folder"}) {
        const TempSetting setting(value);
        const std::string folder = temp_folder();
        struct stat status {};
        ASSERT_EQ(stat(folder.c_str(), &status), 0);
        EXPECT_TRUE(S_ISDIR(status.st_mode));
        EXPECT_EQ(status.st_uid, geteuid());
        EXPECT_EQ(status.st_mode & 0777U, 0700U);
    }
}

}  // namespace
}  // namespace cvdeveloper::files
