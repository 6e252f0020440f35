#include "cvdeveloper/tools/file_system.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/clock.h"
#include "platform/code_page.h"
#include "support/expect_error.h"
#include "support/temporary_folder.h"

namespace cvdeveloper {
namespace {

class FileSystem : public testing::Test {
  protected:
    TemporaryFolder folder;
    Ref<clsFileSystem> files = make_object<clsFileSystem>();
};

TEST_F(FileSystem, AppendFileMakesAFileOfLines) {
    files->AppendFile(folder.file("a.txt"), "a");
    EXPECT_EQ(folder.read("a.txt"), "a\r\n");
    files->AppendFile(folder.file("a.txt"), "b");
    EXPECT_EQ(folder.read("a.txt"), "a\r\nb\r\n");
}

TEST_F(FileSystem, AppendFileInAMissingFolderDoesNothing) {
    files->AppendFile(folder.file("x/a.txt"), "a");
    EXPECT_FALSE(folder.has("x"));
}

TEST_F(FileSystem, CreateTextFileOverwritesOnlyWhenAsked) {
    files->CreateTextFile(folder.file("a.txt"))->Write("lang");
    expect_error(58, "", "Datei existiert bereits (" + folder.file("a.txt") + ")",
                 [&] { files->CreateTextFile(folder.file("a.txt")); });
    EXPECT_EQ(folder.read("a.txt"), "lang");
    files->CreateTextFile(folder.file("a.txt"), true)->WriteLine("x");
    EXPECT_EQ(folder.read("a.txt"), "x\r\n");
    expect_error_number(52, [&] { files->CreateTextFile(folder.file("a*.txt")); });
    expect_error_number(5, [&] { files->CreateTextFile(""); });
    expect_error_number(76, [&] { files->CreateTextFile(folder.file("x/a.txt")); });
}

TEST_F(FileSystem, AStreamForWritingCountsLinesAndColumns) {
    const Ref<TextStream> stream = files->CreateTextFile(folder.file("a.txt"));
    stream->Write("Büro");
    EXPECT_EQ(stream->Line(), 1);
    EXPECT_EQ(stream->Column(), 5);
    stream->WriteLine();
    stream->WriteBlankLines(2);
    EXPECT_EQ(stream->Line(), 4);
    EXPECT_EQ(stream->Column(), 1);
    EXPECT_EQ(from_code_page(folder.read("a.txt")), "Büro\r\n\r\n\r\n");
    expect_error_number(5, [&] { stream->WriteBlankLines(-1); });
    expect_error(54, "", "Dateimodus falsch", [&] { stream->ReadLine(); });
    expect_error_number(54, [&] { return stream->AtEndOfStream(); });
}

TEST_F(FileSystem, AClosedStreamIsNoObjectAnyMore) {
    const Ref<TextStream> stream = files->CreateTextFile(folder.file("a.txt"));
    stream->Close();
    expect_error_number(91, [&] { stream->Write("x"); });
    expect_error_number(91, [&] { return stream->Line(); });
    expect_error_number(91, [&] { return stream->AtEndOfLine(); });
    expect_error_number(91, [&] { stream->Close(); });
}

TEST_F(FileSystem, AStreamForReadingGoesThroughTheText) {
    folder.write("a.txt", to_code_page("eins\r\nzwei\n\nBüro"));
    const Ref<TextStream> stream = make_object<File>(folder.file("a.txt"))->OpenAsTextStream(1);
    EXPECT_EQ(stream->Read(2), "ei");
    EXPECT_EQ(stream->Column(), 3);
    EXPECT_FALSE(stream->AtEndOfLine());
    stream->Skip(2);
    EXPECT_TRUE(stream->AtEndOfLine());
    EXPECT_EQ(stream->ReadLine(), "");
    EXPECT_EQ(stream->Line(), 2);
    EXPECT_EQ(stream->ReadLine(), "zwei");
    stream->SkipLine();
    EXPECT_EQ(stream->Line(), 4);
    EXPECT_EQ(stream->Read(2), "Bü");
    EXPECT_EQ(stream->Read(0), "");
    EXPECT_FALSE(stream->AtEndOfStream());
    EXPECT_EQ(stream->ReadAll(), "ro");
    EXPECT_TRUE(stream->AtEndOfStream());
    EXPECT_TRUE(stream->AtEndOfLine());
    expect_error(62, "", "Eingabe hinter Dateiende", [&] { stream->ReadLine(); });
    expect_error_number(62, [&] { stream->ReadAll(); });
    expect_error_number(62, [&] { stream->Read(1); });
    expect_error_number(5, [&] { stream->Read(-1); });
    expect_error_number(54, [&] { stream->Write("x"); });
}

TEST_F(FileSystem, AFileOpensForWritingAnewAndForAppending) {
    folder.write("a.txt", "alt");
    const Ref<File> file = make_object<File>(folder.file("a.txt"));
    file->OpenAsTextStream(8)->Write("+");
    EXPECT_EQ(folder.read("a.txt"), "alt+");
    file->OpenAsTextStream(2)->Write("neu");
    EXPECT_EQ(folder.read("a.txt"), "neu");
    expect_error_number(5, [&] { return file->OpenAsTextStream(3); });
}

TEST_F(FileSystem, CreateFolderGivesTheFolderWithThePathAsComposed) {
    const std::string path = folder.text() + "\\neu";
    const Ref<Folder> made = files->CreateFolder(path + "\\");
    EXPECT_TRUE(folder.has("neu"));
    EXPECT_EQ(made->Path(), path);
    EXPECT_EQ(made->Name(), "neu");
    EXPECT_EQ(made->ParentFolder()->Path(), folder.text());
    EXPECT_NEAR(made->DateCreated().days, now().days, 1.0 / 1440);
    EXPECT_NEAR(made->DateLastModified().days, now().days, 1.0 / 1440);
    expect_error_number(58, [&] { files->CreateFolder(path); });
    expect_error_number(52, [&] { files->CreateFolder(path + "?"); });
}

TEST_F(FileSystem, AFolderShowsItsFilesAndFolders) {
    folder.write("a.txt", "123");
    folder.write("b.txt", "4567");
    folder.write("deep/c.txt", "8");
    const Ref<Folder> top = make_object<Folder>(folder.text());
    EXPECT_EQ(top->Size(), 8);
    EXPECT_EQ(top->Files()->Count(), 2);
    EXPECT_EQ(top->SubFolders()->Count(), 1);
    EXPECT_EQ(top->SubFolders()->Item(1)->Path(), folder.file("deep"));
    const Ref<File> file = top->Files()->Item("b.txt");
    EXPECT_EQ(file->Name(), "b.txt");
    EXPECT_EQ(file->Path(), folder.file("b.txt"));
    EXPECT_EQ(file->Size(), 4);
    EXPECT_EQ(file->ParentFolder()->Path(), folder.text());
    std::set<std::string> names;
    for (std::int32_t i = 1; i <= 2; ++i) {
        names.insert(top->Files()->Item(i)->Name());
    }
    EXPECT_EQ(names, (std::set<std::string>{"a.txt", "b.txt"}));
    expect_error_number(53, [&] { return top->Files()->Item("x.txt"); });
    expect_error_number(53, [&] { return top->Files()->Item("deep"); });
    expect_error_number(76, [&] { return top->SubFolders()->Item("a.txt"); });
    expect_error_number(9, [&] { return top->Files()->Item(3); });
    expect_error_number(9, [&] { return top->Files()->Item(0); });
}

TEST_F(FileSystem, ARootHasNoParent) {
    EXPECT_FALSE(make_object<Folder>("/")->ParentFolder());
    EXPECT_EQ(make_object<Folder>("/tmp")->ParentFolder()->Path(), "/");
    EXPECT_FALSE(make_object<Folder>("tmp")->ParentFolder());
}

TEST_F(FileSystem, ExistenceTellsFilesFromFolders) {
    folder.write("a.txt", "");
    EXPECT_TRUE(files->FileExists(folder.file("a.txt")));
    EXPECT_FALSE(files->FileExists(folder.text()));
    EXPECT_FALSE(files->FileExists(folder.file("*.txt")));
    EXPECT_TRUE(files->FolderExists(folder.text()));
    EXPECT_FALSE(files->FolderExists(folder.file("a.txt")));
    EXPECT_FALSE(files->FolderExists(""));
}

TEST_F(FileSystem, CopyMoveAndDeleteWorkByNameOfTheOperation) {
    folder.write("a.txt", "x");
    Object& object = *files;
    object.call("copyfile", folder.file("a.txt"), folder.file("b.txt"));
    EXPECT_EQ(folder.read("b.txt"), "x");
    expect_error_number(
        58, [&] { object.call("CopyFile", folder.file("a.txt"), folder.file("b.txt")); });
    object.call("CopyFile", folder.file("a.txt"), folder.file("b.txt"), true);
    object.call("MoveFile", folder.file("b.txt"), folder.file("c.txt"));
    object.call("CreateFolder", folder.file("d"));
    object.call("MoveFolder", folder.file("d"), folder.file("e"));
    object.call("CopyFolder", folder.file("e"), folder.file("f"));
    object.call("DeleteFolder", folder.file("e"));
    object.call("DeleteFile", folder.file("?.txt"));
    EXPECT_FALSE(folder.has("a.txt"));
    EXPECT_FALSE(folder.has("c.txt"));
    EXPECT_FALSE(folder.has("e"));
    EXPECT_TRUE(folder.has("f"));
    EXPECT_EQ(object.call("FolderExists", folder.file("f")), Variant(true));
    const Variant made = object.call("CreateTextFile", folder.file("g.txt"));
    made.get<ObjectRef>()->call("WriteLine", "Zeile");
    EXPECT_EQ(folder.read("g.txt"), "Zeile\r\n");
}

}  // namespace
}  // namespace cvdeveloper
