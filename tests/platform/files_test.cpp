#include "platform/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>

#include "platform/clock.h"
#include "platform/file_operations.h"
#include "support/expect_error.h"
#include "support/temp_folder.h"

namespace cvdeveloper::files {
namespace {

namespace fs = std::filesystem;

// Sets TMPDIR for a test's duration.
class TmpDir {
  public:
    explicit TmpDir(const char* value) {
        if (const char* before = std::getenv("TMPDIR")) {
            before_ = before;
        }
        value == nullptr ? unsetenv("TMPDIR") : setenv("TMPDIR", value, 1);
    }
    TmpDir(const TmpDir&) = delete;
    TmpDir& operator=(const TmpDir&) = delete;
    ~TmpDir() { before_ ? setenv("TMPDIR", before_->c_str(), 1) : unsetenv("TMPDIR"); }

  private:
    std::optional<std::string> before_;
};

TEST(Files, BothSeparatorsReachTheDisk) {
    const TempFolder folder;
    folder.write("eins/zwei.txt", "x");
    EXPECT_TRUE(file_exists(folder.path() + "\\eins\\zwei.txt"));
    EXPECT_TRUE(folder_exists(folder.path() + "\\eins\\"));
    EXPECT_FALSE(file_exists(folder.path("eins")));
    EXPECT_FALSE(folder_exists(folder.path("eins/zwei.txt")));
}

TEST(Files, PathsThatCannotBeOneDoNotExist) {
    EXPECT_FALSE(file_exists(""));
    EXPECT_FALSE(folder_exists(""));
    EXPECT_FALSE(file_exists(std::string_view("/etc/passwd\0x", 13)));
    expect_error_number(52, [] { create_folder(std::string_view("/tmp/a\0b", 8)); });
}

TEST(Files, CopiesKeepTheirDateAndRights) {
    const TempFolder folder;
    folder.write("a", "text");
    fs::permissions(folder.path("a"), fs::perms::owner_read | fs::perms::owner_write);
    const auto time = fs::last_write_time(folder.path("a")) - std::chrono::hours(48);
    fs::last_write_time(folder.path("a"), time);
    copy_file(folder.path("a"), folder.path("b"), false);
    EXPECT_EQ(folder.read("b"), "text");
    EXPECT_EQ(fs::last_write_time(folder.path("b")), time);
    EXPECT_EQ(fs::status(folder.path("b")).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST(Files, OnlyCopyingWithOverwriteReplacesAFile) {
    const TempFolder folder;
    folder.write("a", "new");
    folder.write("b", "old");
    expect_error(58, "", "Datei existiert bereits (" + folder.path("b") + ")",
                 [&] { copy_files(folder.path("a"), folder.path("b"), false); });
    EXPECT_EQ(folder.read("b"), "old");
    copy_files(folder.path("a"), folder.path("b"), true);
    EXPECT_EQ(folder.read("b"), "new");
}

TEST(Files, MissingSourcesAreToldApartByTheirFolder) {
    const TempFolder folder;
    expect_error(53, "", "Datei nicht gefunden (" + folder.path("a") + ")",
                 [&] { copy_files(folder.path("a"), folder.path("b"), false); });
    expect_error(76, "", "Pfad nicht gefunden (" + folder.path("x/a") + ")",
                 [&] { copy_files(folder.path("x/a"), folder.path("b"), false); });
    expect_error_number(53, [&] { remove_files(folder.path("a")); });
    expect_error_number(76, [&] { remove_files(folder.path("x/a")); });
    expect_error_number(53, [&] { move_files(folder.path("a"), folder.path("b")); });
    expect_error_number(76, [&] { remove_folders(folder.path("x")); });
    expect_error_number(53, [&] { read_text(folder.path("a")); });
    expect_error_number(76, [&] { entries(folder.path("x")); });
}

TEST(Files, TargetsInAMissingFolderAreError76) {
    const TempFolder folder;
    folder.write("a", "");
    expect_error(76, "", "Pfad nicht gefunden (" + folder.path("x/b") + ")",
                 [&] { copy_files(folder.path("a"), folder.path("x/b"), false); });
    expect_error_number(76, [&] { copy_files(folder.path("a"), folder.path("x/"), false); });
    expect_error_number(76, [&] { move_files(folder.path("a"), folder.path("x/b")); });
    expect_error_number(76, [&] { create_folder(folder.path("x/y")); });
    expect_error_number(76, [&] { OutputFile(folder.path("x/y"), OutputFile::Mode::Append); });
}

TEST(Files, WildcardsNameSeveralFilesAndNoFolders) {
    const TempFolder folder;
    folder.write("a.txt", "a");
    folder.write("b.TXT", "b");
    folder.write("c.doc", "c");
    folder.write("d.txt/e", "e");
    create_folder(folder.path("to"));
    copy_files(folder.path("*.txt"), folder.path("to"), false);
    EXPECT_EQ(folder.read("to/a.txt"), "a");
    EXPECT_EQ(folder.read("to/b.TXT"), "b");
    EXPECT_FALSE(folder.has("to/c.doc"));
    EXPECT_FALSE(folder.has("to/d.txt"));
    remove_files(folder.path("?.txt"));
    EXPECT_FALSE(folder.has("a.txt"));
    EXPECT_TRUE(folder.has("d.txt/e"));
    expect_error_number(53, [&] { remove_files(folder.path("*.txt")); });
}

TEST(Files, ATargetThatEndsInASeparatorIsAFolder) {
    const TempFolder folder;
    folder.write("a", "x");
    create_folder(folder.path("to"));
    copy_files(folder.path("a"), folder.path("to") + "\\", false);
    EXPECT_EQ(folder.read("to/a"), "x");
    move_files(folder.path("a"), folder.path("to/") + "../b");
    EXPECT_EQ(folder.read("b"), "x");
}

TEST(Files, AFolderIsNoTargetForAFile) {
    const TempFolder folder;
    folder.write("a", "x");
    create_folder(folder.path("to"));
    expect_error_number(70, [&] { copy_files(folder.path("a"), folder.path("to"), true); });
    expect_error_number(58, [&] { move_files(folder.path("a"), folder.path("to")); });
}

TEST(Files, EmptyPathsAndTargetsWithWildcardsAreRefused) {
    const TempFolder folder;
    folder.write("a", "x");
    expect_error_number(5, [&] { copy_files("", folder.path("b"), false); });
    expect_error_number(5, [&] { copy_files(folder.path("a"), "", false); });
    expect_error_number(5, [] { remove_files(""); });
    expect_error_number(5, [] { remove_folders(""); });
    expect_error_number(52, [&] { copy_files(folder.path("a"), folder.path("b*"), false); });
}

TEST(Files, MovingNeverOverwrites) {
    const TempFolder folder;
    folder.write("a", "1");
    folder.write("b", "2");
    folder.write("c/d", "3");
    folder.write("e/f", "4");
    expect_error_number(58, [&] { move_files(folder.path("a"), folder.path("b")); });
    expect_error_number(58, [&] { move_folders(folder.path("c"), folder.path("e")); });
    EXPECT_EQ(folder.read("b"), "2");
    move_folders(folder.path("c"), folder.path("e/"));
    EXPECT_EQ(folder.read("e/c/d"), "3");
    EXPECT_FALSE(folder.has("c"));
}

TEST(Files, AFolderCannotGoIntoItself) {
    const TempFolder folder;
    folder.write("a/b", "1");
    expect_error_number(70, [&] { move_folders(folder.path("a"), folder.path("a/c")); });
    expect_error_number(70, [&] { copy_folders(folder.path("a"), folder.path("a/c"), false); });
    expect_error_number(70, [&] { copy_folders(folder.path("a"), folder.path("a"), true); });
    EXPECT_FALSE(folder.has("a/c"));
}

TEST(Files, CopiedFoldersAreMergedIntoFoldersThatExist) {
    const TempFolder folder;
    folder.write("a/x", "new");
    folder.write("a/deep/y", "y");
    folder.write("b/x", "old");
    folder.write("b/z", "z");
    expect_error_number(58, [&] { copy_folders(folder.path("a"), folder.path("b"), false); });
    EXPECT_EQ(folder.read("b/x"), "old");
    copy_folders(folder.path("a"), folder.path("b"), true);
    EXPECT_EQ(folder.read("b/x"), "new");
    EXPECT_EQ(folder.read("b/deep/y"), "y");
    EXPECT_EQ(folder.read("b/z"), "z");
    copy_folders(folder.path("a"), folder.path("c"), false);
    EXPECT_EQ(folder.read("c/deep/y"), "y");
}

// A link into its own tree would copy for ever.
TEST(Files, LinksAreCopiedAsLinksAndDeletedWithoutWhatTheyLeadTo) {
    const TempFolder folder;
    folder.write("a/x", "1");
    folder.write("outside/y", "2");
    fs::create_directory_symlink("..", folder.path("a/loop"));
    fs::create_directory_symlink(folder.path("outside"), folder.path("a/out"));
    copy_folders(folder.path("a"), folder.path("b"), false);
    EXPECT_TRUE(fs::is_symlink(folder.path("b/loop")));
    EXPECT_EQ(total_size(folder.path("b")), 1);
    remove_folders(folder.path("a"));
    EXPECT_FALSE(folder.has("a"));
    EXPECT_EQ(folder.read("outside/y"), "2");
}

TEST(Files, WildcardsDeleteSeveralFolders) {
    const TempFolder folder;
    folder.write("jahr1/x", "");
    folder.write("jahr2/deep/x", "");
    folder.write("jahr.txt", "");
    remove_folders(folder.path("Jahr?"));
    EXPECT_FALSE(folder.has("jahr1"));
    EXPECT_FALSE(folder.has("jahr2"));
    EXPECT_TRUE(folder.has("jahr.txt"));
    expect_error_number(76, [&] { remove_folders(folder.path("jahr.txt")); });
    expect_error_number(70, [] { remove_folders("/"); });
}

TEST(Files, CreatingWhatExistsIsError58) {
    const TempFolder folder;
    folder.write("a", "");
    expect_error_number(58, [&] { create_folder(folder.path()); });
    expect_error_number(58, [&] { OutputFile(folder.path("a"), OutputFile::Mode::CreateNew); });
}

TEST(Files, PartsOfAPathThatAreFilesAreError76) {
    const TempFolder folder;
    folder.write("a", "");
    expect_error_number(76, [&] { create_folder(folder.path("a/b")); });
    expect_error_number(70, [&] { OutputFile(folder.path(), OutputFile::Mode::Append); });
}

TEST(Files, NamesThatAreTooLongAreError52) {
    const TempFolder folder;
    expect_error_number(52, [&] { create_folder(folder.path(std::string(300, 'x'))); });
}

TEST(Files, AFullDiskIsError61) {
    expect_error(61, "", "Datenträger voll (/dev/full)",
                 [] { OutputFile("/dev/full", OutputFile::Mode::Append).write("x"); });
}

TEST(Files, AppendedLinesEndWithCrLfAndMakeTheFile) {
    const TempFolder folder;
    EXPECT_TRUE(append_line(folder.path() + "\\log.txt", "a"));
    EXPECT_TRUE(append_line(folder.path("log.txt"), "Büro"));
    EXPECT_EQ(folder.read("log.txt"), "a\r\nBüro\r\n");
    EXPECT_FALSE(append_line(folder.path("x/log.txt"), "a"));
    EXPECT_FALSE(append_line(folder.path(), "a"));
    EXPECT_FALSE(append_line("", "a"));
}

TEST(Files, PropertiesTellSizeAndLocalDates) {
    const TempFolder folder;
    folder.write("a", "12345");
    const Properties facts = properties(folder.path("a"));
    EXPECT_EQ(facts.size, 5U);
    EXPECT_NEAR(facts.modified.days, now().days, 1.0 / 1440);
    EXPECT_NEAR(facts.created.days, now().days, 1.0 / 1440);
    expect_error_number(53, [&] { properties(folder.path("b")); });
}

TEST(Files, TheTemporaryFolderIsTmpdirWhereThatIsAFolder) {
    const TempFolder folder;
    const TmpDir variable(folder.path().c_str());
    EXPECT_EQ(temp_folder(), folder.path());
}

TEST(Files, WithoutTmpdirTheTemporaryFolderIsForTheUsersEyesOnly) {
    for (const char* value : {static_cast<const char*>(nullptr), "/there/is/no/such/folder"}) {
        const TmpDir variable(value);
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
