#include "platform/files.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "platform/clock.h"
#include "platform/code_page.h"
#include "platform/file_operations.h"
#include "support/expect_error.h"
#include "support/temporary_folder.h"

namespace cvdeveloper::files {
namespace {

namespace fs = std::filesystem;

TEST(Files, BothSeparatorsReachTheDisk) {
    const TemporaryFolder folder;
    folder.write("eins/zwei.txt", "x");
    EXPECT_TRUE(file_exists(folder.text() + "\\eins\\zwei.txt"));
    EXPECT_TRUE(folder_exists(folder.text() + "\\eins\\"));
    EXPECT_FALSE(file_exists(folder.file("eins")));
    EXPECT_FALSE(folder_exists(folder.file("eins/zwei.txt")));
}

TEST(Files, PathsThatCannotBeOneDoNotExist) {
    EXPECT_FALSE(file_exists(""));
    EXPECT_FALSE(folder_exists(""));
    EXPECT_FALSE(file_exists(std::string_view("/etc/passwd\0x", 13)));
    expect_error_number(52, [] { create_folder(std::string_view("/tmp/a\0b", 8)); });
}

TEST(Files, CopiesKeepTheirDate) {
    const TemporaryFolder folder;
    folder.write("a", "text");
    const auto time = fs::last_write_time(folder.path() / "a") - std::chrono::hours(48);
    fs::last_write_time(folder.path() / "a", time);
    copy_file(folder.file("a"), folder.file("b"), false);
    EXPECT_EQ(folder.read("b"), "text");
    EXPECT_EQ(fs::last_write_time(folder.path() / "b"), time);
}

TEST(Files, OnlyCopyingWithOverwriteReplacesAFile) {
    const TemporaryFolder folder;
    folder.write("a", "new");
    folder.write("b", "old");
    expect_error(58, "", "Datei existiert bereits (" + folder.file("b") + ")",
                 [&] { copy_files(folder.file("a"), folder.file("b"), false); });
    EXPECT_EQ(folder.read("b"), "old");
    copy_files(folder.file("a"), folder.file("b"), true);
    EXPECT_EQ(folder.read("b"), "new");
}

TEST(Files, MissingSourcesAreToldApartByTheirFolder) {
    const TemporaryFolder folder;
    expect_error(53, "", "Datei nicht gefunden (" + folder.file("a") + ")",
                 [&] { copy_files(folder.file("a"), folder.file("b"), false); });
    expect_error(76, "", "Pfad nicht gefunden (" + folder.file("x/a") + ")",
                 [&] { copy_files(folder.file("x/a"), folder.file("b"), false); });
    expect_error_number(53, [&] { remove_files(folder.file("a")); });
    expect_error_number(76, [&] { remove_files(folder.file("x/a")); });
    expect_error_number(53, [&] { move_files(folder.file("a"), folder.file("b")); });
    expect_error_number(76, [&] { remove_folders(folder.file("x")); });
    expect_error_number(53, [&] { read_text(folder.file("a")); });
    expect_error_number(76, [&] { entries(folder.file("x")); });
}

TEST(Files, TargetsInAMissingFolderAreError76) {
    const TemporaryFolder folder;
    folder.write("a", "");
    expect_error(76, "", "Pfad nicht gefunden (" + folder.file("x/b") + ")",
                 [&] { copy_files(folder.file("a"), folder.file("x/b"), false); });
    expect_error_number(76, [&] { copy_files(folder.file("a"), folder.file("x/"), false); });
    expect_error_number(76, [&] { move_files(folder.file("a"), folder.file("x/b")); });
    expect_error_number(76, [&] { create_folder(folder.file("x/y")); });
    expect_error_number(76, [&] { OutputFile(folder.file("x/y"), OutputFile::Mode::Append); });
}

TEST(Files, WildcardsNameSeveralFilesAndNoFolders) {
    const TemporaryFolder folder;
    folder.write("a.txt", "a");
    folder.write("b.TXT", "b");
    folder.write("c.doc", "c");
    folder.write("d.txt/e", "e");
    create_folder(folder.file("to"));
    copy_files(folder.file("*.txt"), folder.file("to"), false);
    EXPECT_EQ(folder.read("to/a.txt"), "a");
    EXPECT_EQ(folder.read("to/b.TXT"), "b");
    EXPECT_FALSE(folder.has("to/c.doc"));
    EXPECT_FALSE(folder.has("to/d.txt"));
    remove_files(folder.file("?.txt"));
    EXPECT_FALSE(folder.has("a.txt"));
    EXPECT_TRUE(folder.has("d.txt/e"));
    expect_error_number(53, [&] { remove_files(folder.file("*.txt")); });
}

TEST(Files, ATargetThatEndsInASeparatorIsAFolder) {
    const TemporaryFolder folder;
    folder.write("a", "x");
    create_folder(folder.file("to"));
    copy_files(folder.file("a"), folder.file("to") + "\\", false);
    EXPECT_EQ(folder.read("to/a"), "x");
    move_files(folder.file("a"), folder.file("to/") + "../b");
    EXPECT_EQ(folder.read("b"), "x");
}

TEST(Files, AFolderIsNoTargetForAFile) {
    const TemporaryFolder folder;
    folder.write("a", "x");
    create_folder(folder.file("to"));
    expect_error_number(70, [&] { copy_files(folder.file("a"), folder.file("to"), true); });
    expect_error_number(58, [&] { move_files(folder.file("a"), folder.file("to")); });
}

TEST(Files, EmptyPathsAndTargetsWithWildcardsAreRefused) {
    const TemporaryFolder folder;
    folder.write("a", "x");
    expect_error_number(5, [&] { copy_files("", folder.file("b"), false); });
    expect_error_number(5, [&] { copy_files(folder.file("a"), "", false); });
    expect_error_number(5, [] { remove_files(""); });
    expect_error_number(5, [] { remove_folders(""); });
    expect_error_number(52, [&] { copy_files(folder.file("a"), folder.file("b*"), false); });
}

TEST(Files, MovingNeverOverwrites) {
    const TemporaryFolder folder;
    folder.write("a", "1");
    folder.write("b", "2");
    folder.write("c/d", "3");
    folder.write("e/f", "4");
    expect_error_number(58, [&] { move_files(folder.file("a"), folder.file("b")); });
    expect_error_number(58, [&] { move_folders(folder.file("c"), folder.file("e")); });
    EXPECT_EQ(folder.read("b"), "2");
    move_folders(folder.file("c"), folder.file("e/"));
    EXPECT_EQ(folder.read("e/c/d"), "3");
    EXPECT_FALSE(folder.has("c"));
}

TEST(Files, AFolderCannotGoIntoItself) {
    const TemporaryFolder folder;
    folder.write("a/b", "1");
    expect_error_number(70, [&] { move_folders(folder.file("a"), folder.file("a/c")); });
    expect_error_number(70, [&] { copy_folders(folder.file("a"), folder.file("a/c"), false); });
    expect_error_number(70, [&] { copy_folders(folder.file("a"), folder.file("a"), true); });
    EXPECT_FALSE(folder.has("a/c"));
}

TEST(Files, CopiedFoldersAreMergedIntoFoldersThatExist) {
    const TemporaryFolder folder;
    folder.write("a/x", "new");
    folder.write("a/deep/y", "y");
    folder.write("b/x", "old");
    folder.write("b/z", "z");
    expect_error_number(58, [&] { copy_folders(folder.file("a"), folder.file("b"), false); });
    EXPECT_EQ(folder.read("b/x"), "old");
    copy_folders(folder.file("a"), folder.file("b"), true);
    EXPECT_EQ(folder.read("b/x"), "new");
    EXPECT_EQ(folder.read("b/deep/y"), "y");
    EXPECT_EQ(folder.read("b/z"), "z");
    copy_folders(folder.file("a"), folder.file("c"), false);
    EXPECT_EQ(folder.read("c/deep/y"), "y");
}

TEST(Files, WildcardsDeleteSeveralFolders) {
    const TemporaryFolder folder;
    folder.write("jahr1/x", "");
    folder.write("jahr2/deep/x", "");
    folder.write("jahr.txt", "");
    remove_folders(folder.file("Jahr?"));
    EXPECT_FALSE(folder.has("jahr1"));
    EXPECT_FALSE(folder.has("jahr2"));
    EXPECT_TRUE(folder.has("jahr.txt"));
    expect_error_number(76, [&] { remove_folders(folder.file("jahr.txt")); });
    expect_error_number(70, [] { remove_folders("/"); });
}

TEST(Files, CreatingWhatExistsIsError58) {
    const TemporaryFolder folder;
    folder.write("a", "");
    expect_error_number(58, [&] { create_folder(folder.text()); });
    expect_error_number(58, [&] { OutputFile(folder.file("a"), OutputFile::Mode::CreateNew); });
}

TEST(Files, PartsOfAPathThatAreFilesAreError76) {
    const TemporaryFolder folder;
    folder.write("a", "");
    expect_error_number(76, [&] { create_folder(folder.file("a/b")); });
    expect_error_number(70, [&] { OutputFile(folder.text(), OutputFile::Mode::Append); });
}

TEST(Files, AppendedLinesEndWithCrLfAndMakeTheFile) {
    const TemporaryFolder folder;
    EXPECT_TRUE(append_line(folder.text() + "\\log.txt", "a"));
    EXPECT_TRUE(append_line(folder.file("log.txt"), "Büro"));
    EXPECT_EQ(from_code_page(folder.read("log.txt")), "a\r\nBüro\r\n");
    EXPECT_FALSE(append_line(folder.file("x/log.txt"), "a"));
    EXPECT_FALSE(append_line(folder.text(), "a"));
    EXPECT_FALSE(append_line("", "a"));
}

TEST(Files, PropertiesTellSizeAndLocalDates) {
    const TemporaryFolder folder;
    folder.write("a", "12345");
    const Properties facts = properties(folder.file("a"));
    EXPECT_EQ(facts.size, 5U);
    EXPECT_NEAR(facts.modified.days, now().days, 1.0 / 1440);
    EXPECT_NEAR(facts.created.days, now().days, 1.0 / 1440);
    expect_error_number(53, [&] { properties(folder.file("b")); });
}

}  // namespace
}  // namespace cvdeveloper::files
