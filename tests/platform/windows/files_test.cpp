#include "platform/files.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <aclapi.h>

#include "cvdeveloper/tools/directory_search.h"
#include "platform/file_operations.h"
#include "platform/paths.h"
#include "platform/windows/utf16.h"
#include "support/expect_error.h"
#include "support/temporary_folder.h"

namespace cvdeveloper::files {
namespace {

std::wstring wide(const std::string& path) {
    return to_utf16(path);
}

// Whether everybody may do something with the file.
bool is_everybodys(const std::string& path) {
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    EXPECT_EQ(GetNamedSecurityInfoW(wide(path).data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION,
                                    nullptr, nullptr, &list, nullptr, &descriptor),
              static_cast<DWORD>(ERROR_SUCCESS));
    bool found = list == nullptr;
    for (WORD index = 0; list != nullptr && index < list->AceCount; ++index) {
        void* entry = nullptr;
        GetAce(list, index, &entry);
        auto* const allowed = static_cast<ACCESS_ALLOWED_ACE*>(entry);
        found = found || (allowed->Header.AceType == ACCESS_ALLOWED_ACE_TYPE &&
                          IsWellKnownSid(&allowed->SidStart, WinWorldSid) != FALSE);
    }
    LocalFree(descriptor);
    return found;
}

TEST(WindowsFiles, NamesHaveEveryCharacter) {
    const TemporaryFolder folder;
    folder.write("Büro ж 🏠.txt", "x");
    EXPECT_TRUE(file_exists(folder.file("Büro ж 🏠.txt")));
    ASSERT_EQ(entries(folder.text()).size(), 1U);
    EXPECT_EQ(entries(folder.text())[0].name, "Büro ж 🏠.txt");
}

TEST(WindowsFiles, PathsMayBeLongerThan260Units) {
    const TemporaryFolder folder;
    std::string path = folder.text();
    for (int depth = 0; depth < 4; ++depth) {
        path = paths::join(path, std::string(100, 'x'));
        create_folder(path);
    }
    const std::string file = paths::join(path, "a.txt");
    OutputFile(file, OutputFile::Mode::CreateNew).write("tief");
    EXPECT_EQ(read_text(file), "tief");
    EXPECT_EQ(total_size(folder.text()), 4);
    remove_folders(folder.file(std::string(100, 'x')));
    EXPECT_TRUE(entries(folder.text()).empty());
}

TEST(WindowsFiles, HiddenFilesAreHiddenByTheirAttribute) {
    const TemporaryFolder folder;
    folder.write("a.txt", "");
    SetFileAttributesW(wide(folder.file("a.txt")).c_str(), FILE_ATTRIBUTE_HIDDEN);
    EXPECT_TRUE(is_hidden(folder.file("a.txt")));
    DirectorySearch search;
    search.start(folder.file("a.txt"), 0);
    EXPECT_EQ(search.next(), "");
    search.start(folder.file("*.txt"), 2);
    EXPECT_EQ(search.next(), "a.txt");
}

TEST(WindowsFiles, WriteProtectedFilesAreError70) {
    const TemporaryFolder folder;
    folder.write("a", "x");
    SetFileAttributesW(wide(folder.file("a")).c_str(), FILE_ATTRIBUTE_READONLY);
    expect_error(70, "", "Zugriff verweigert (" + folder.file("a") + ")",
                 [&] { remove_files(folder.file("a")); });
    SetFileAttributesW(wide(folder.file("a")).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(WindowsFiles, FilesThatSomebodyHoldsForHimselfAreError70) {
    const TemporaryFolder folder;
    folder.write("a", "x");
    const HANDLE holder = CreateFileW(wide(folder.file("a")).c_str(), GENERIC_READ, 0, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(holder, INVALID_HANDLE_VALUE);
    expect_error_number(70, [&] { read_text(folder.file("a")); });
    expect_error_number(70, [&] { remove_files(folder.file("a")); });
    CloseHandle(holder);
}

TEST(WindowsFiles, OpenFilesCanBeReadByOthers) {
    const TemporaryFolder folder;
    OutputFile log(folder.file("log"), OutputFile::Mode::Append);
    log.write("eins");
    OutputFile(folder.file("log"), OutputFile::Mode::Append).write("zwei");
    log.write("drei");
    EXPECT_EQ(read_text(folder.file("log")), "einszweidrei");
}

TEST(WindowsFiles, RootsOfDrivesStayWhole) {
    EXPECT_TRUE(folder_exists("C:\\"));
    EXPECT_FALSE(entries("C:\\").empty());
    expect_error_number(70, [] { remove_folders("C:\\"); });
}

TEST(WindowsFiles, TheTemporaryFolderExistsAndEndsInNoSeparator) {
    const std::string folder = temp_folder();
    EXPECT_TRUE(folder_exists(folder));
    EXPECT_FALSE(paths::ends_with_separator(folder));
}

TEST(WindowsFiles, OnlyTheUserHasRightsToWhatIsRestricted) {
    const TemporaryFolder folder;
    folder.write("a", "x");
    const std::string open_folder = paths::join(paths::split(temp_folder()).folder, "offen");
    create_folder(open_folder);
    EXPECT_TRUE(is_everybodys(open_folder));
    restrict_to_owner(open_folder);
    EXPECT_FALSE(is_everybodys(open_folder));
    remove_folder(open_folder);
    EXPECT_FALSE(is_everybodys(folder.text()));
    restrict_to_owner(folder.file("a"));
    EXPECT_FALSE(is_everybodys(folder.file("a")));
    EXPECT_EQ(read_text(folder.file("a")), "x");
}

}  // namespace
}  // namespace cvdeveloper::files
