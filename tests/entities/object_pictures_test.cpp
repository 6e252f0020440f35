#include "cvdeveloper/entities/object_pictures.h"

#include "entities/record_test.h"
#include "support/temporary_folder.h"

namespace cvdeveloper {
namespace {

class ObjectPicturesTest : public RecordTest {
  protected:
    ObjectPicturesTest() {
        answer_std("MMDateiLang", "Bild");
        answer_std("MMDateiKurz", "Kurz");
    }

    [[nodiscard]] RecordSet object(Variant file) const {
        return host.record_set(row({{"Datei", std::move(file)}}));
    }

    ObjectPictures pictures{session};
};

TEST_F(ObjectPicturesTest, LongPictureHasItsNumberBehindTheWord) {
    EXPECT_EQ(pictures.OBJ_Bild_MakeFileName(object("\\OB1234\\"), 3, "Garten", "jpg"),
              "C:\\Corvanta\\pic.obj\\OB1234-Bild3#Garten.jpg");
    EXPECT_EQ(host.log(), Lines{"SELECT MMDateiLang FROM Std"});
}

TEST_F(ObjectPicturesTest, ShortPictureHasNoNumber) {
    EXPECT_EQ(pictures.OBJ_Bild_MakeFileName(object("OB1234"), 0, "", ".png"),
              "C:\\Corvanta\\pic.obj\\OB1234-Kurz#.png");
    EXPECT_EQ(host.log(), Lines{"SELECT MMDateiKurz FROM Std"});
}

TEST_F(ObjectPicturesTest, NumberBelowZeroHasNoName) {
    EXPECT_EQ(pictures.OBJ_Bild_MakeFileName(object("OB1234"), -1, "Garten", "jpg"), "");
    EXPECT_EQ(pictures.OBJ_Bild_Get(object("OB1234"), -1), "");
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(ObjectPicturesTest, StemLosesBlanksAndSeparatorsAroundIt) {
    EXPECT_EQ(pictures.OBJ_Bild_MakeFileName(object("  \\\\OB\\12\\\\ "), 1, "", ""),
              "C:\\Corvanta\\pic.obj\\OB\\12-Bild1#");
    EXPECT_EQ(pictures.OBJ_Bild_MakeFileName(object("\\\\"), 1, "", ""),
              "C:\\Corvanta\\pic.obj\\-Bild1#");
    EXPECT_EQ(pictures.OBJ_Bild_MakeFileName(object(Null{}), 1, "", ""),
              "C:\\Corvanta\\pic.obj\\-Bild1#");
}

TEST_F(ObjectPicturesTest, WordsAreReadOnce) {
    EXPECT_EQ(pictures.OBJ_Bild_StdBezLang(), "Bild");
    EXPECT_EQ(pictures.OBJ_Bild_StdBezKurz(), "Kurz");
    EXPECT_EQ(pictures.OBJ_Bild_StdBezLang(), "Bild");
    EXPECT_EQ(pictures.OBJ_Bild_StdBezKurz(), "Kurz");
    EXPECT_EQ(host.log(), (Lines{"SELECT MMDateiLang FROM Std", "SELECT MMDateiKurz FROM Std"}));
}

TEST_F(ObjectPicturesTest, EmptyWordIsAskedForAgain) {
    RecordingHost empty_host;
    const auto other = empty_host.attached();
    const LogFile other_log(*other);
    const std::string question = "SELECT MMDateiLang FROM Std";
    empty_host.answer(question, row({{"MMDateiLang", Null{}}}));
    empty_host.answer(question, row({{"MMDateiLang", "Foto"}}));
    EXPECT_EQ(other->OBJ_Bild_StdBezLang(), "");
    EXPECT_EQ(other->OBJ_Bild_StdBezLang(), "Foto");
    EXPECT_EQ(other->OBJ_Bild_StdBezLang(), "Foto");
    EXPECT_EQ(empty_host.log(), (Lines{question, question}));
}

TEST_F(ObjectPicturesTest, NameIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { pictures.OBJ_Bild_MakeFileName(object("X"), 1, "", ""); });
    expect_error_number(601, [&] { pictures.OBJ_Bild_Set(object("X"), "a.jpg", 1, ""); });
    expect_error_number(601, [&] { pictures.OBJ_Bild_Get(object("X"), 1); });
    expect_error_number(601, [&] { pictures.OBJ_Bild_StdBezKurz(); });
}

// Pictures on disk, in the folder of a connector's session.
class PictureFilesTest : public ObjectPicturesTest {
  protected:
    void make_picture_folder() const { std::filesystem::create_directory(folder.file("pic.obj")); }

    TemporaryFolder folder;
    Ref<Application> connected = host.connected(folder.text());
    LogFile log_file_of_files{*connected};
    ObjectPictures files{session_of(*connected)};
};

TEST_F(PictureFilesTest, SetCopiesThePictureOverAnOldOne) {
    make_picture_folder();
    folder.write("quelle.JPG", "neu");
    folder.write("pic.obj/OB1-Bild2#Garten.JPG", "alt");
    files.OBJ_Bild_Set(object("OB1"), folder.file("quelle.JPG"), 2, "Garten");
    EXPECT_EQ(folder.read("pic.obj/OB1-Bild2#Garten.JPG"), "neu");
    EXPECT_EQ(folder.read("quelle.JPG"), "neu");
}

TEST_F(PictureFilesTest, SetWithoutThePictureFolderIsPathNotFound) {
    folder.write("quelle.jpg", "neu");
    expect_error_number(
        76, [&] { files.OBJ_Bild_Set(object("OB1"), folder.file("quelle.jpg"), 2, "Garten"); });
    EXPECT_FALSE(std::filesystem::exists(folder.file("pic.obj")));
}

TEST_F(PictureFilesTest, SetOfAMissingFileIsFileNotFound) {
    make_picture_folder();
    expect_error_number(
        53, [&] { files.OBJ_Bild_Set(object("OB1"), folder.file("weg.jpg"), 2, "Garten"); });
}

TEST_F(PictureFilesTest, GetFindsThePictureWhateverItsCaptionExtensionAndCase) {
    make_picture_folder();
    folder.write("pic.obj/OB1234-Bild33#x.png", "");
    folder.write("pic.obj/ob1234-bild3#irgendwas.png", "");
    EXPECT_EQ(files.OBJ_Bild_Get(object("OB1234"), 3),
              folder.text() + "\\pic.obj\\ob1234-bild3#irgendwas.png");
}

TEST_F(PictureFilesTest, GetFindsNamesWithUmlauts) {
    make_picture_folder();
    folder.write("pic.obj/STRASSENBÄUME-kurz#.jpg", "");
    EXPECT_EQ(files.OBJ_Bild_Get(object("Strassenbäume"), 0),
              folder.text() + "\\pic.obj\\STRASSENBÄUME-kurz#.jpg");
}

TEST_F(PictureFilesTest, GetPassesOverFoldersAndOtherFiles) {
    make_picture_folder();
    std::filesystem::create_directory(folder.file("pic.obj/OB1-Bild1#alt"));
    folder.write("pic.obj/OB1-Bild1.jpg", "");
    EXPECT_EQ(files.OBJ_Bild_Get(object("OB1"), 1), "");
}

TEST_F(PictureFilesTest, GetLooksIntoTheFolderOfAStemThatNamesOne) {
    make_picture_folder();
    std::filesystem::create_directory(folder.file("pic.obj/haus"));
    folder.write("pic.obj/haus/OB1-Bild1#x.jpg", "");
    EXPECT_EQ(files.OBJ_Bild_Get(object("haus\\OB1"), 1),
              folder.text() + "\\pic.obj\\haus\\OB1-Bild1#x.jpg");
}

TEST_F(PictureFilesTest, GetWithoutThePictureFolderIsPathNotFound) {
    expect_error_number(76, [&] { files.OBJ_Bild_Get(object("OB1"), 1); });
}

}  // namespace
}  // namespace cvdeveloper
