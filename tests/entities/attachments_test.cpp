#include "cvdeveloper/entities/attachments.h"

#include "entities/record_test.h"
#include "support/temporary_folder.h"

namespace cvdeveloper {
namespace {

class AttachmentsTest : public RecordTest {
  protected:
    static std::vector<std::pair<std::string, Variant>> blob(const std::string& key,
                                                             std::int32_t kind,
                                                             const std::string& source,
                                                             Variant sent = std::int16_t{0}) {
        return {{"Dsn", key},
                {"uidLINK_DSN", "K1"},
                {"lngTyp", kind},
                {"strsourcefilename", source},
                {"mail_attachment", std::move(sent)}};
    }
    static Rows blobs(std::initializer_list<std::vector<std::pair<std::string, Variant>>> all) {
        Rows rows;
        for (const auto& fields : all) {
            Rows one = row(fields);
            rows.columns = one.columns;
            rows.rows.push_back(one.rows.front());
        }
        return rows;
    }

    TemporaryFolder folder;
    TemporaryFolder target;
    Attachments attachments{session};
};

TEST_F(AttachmentsTest, ActivityGetsTheContentMarkedAsSentUnlessAskedOtherwise) {
    EXPECT_EQ(attachments.AKT_Blob_Add("K1", "a.pdf"), "BLOB-1-sent");
    EXPECT_EQ(host.log(),
              (Lines{"SaveBlobFile a.pdf, K1, 6", "SaveBlobFile a.pdf, K1, 6, BLOB-1, Wahr"}));
}

TEST_F(AttachmentsTest, AttachmentThatIsNotMarkedIsSavedOnce) {
    EXPECT_EQ(attachments.BLOB_Add("a.pdf", "K1", true, false), "BLOB-1");
    EXPECT_EQ(host.log(), Lines{"SaveBlobFile a.pdf, K1, 7"});
}

TEST_F(AttachmentsTest, DeletingNamesNoOwnerAndAlwaysKindSix) {
    attachments.BLOB_Del("B1", "veraltet");
    EXPECT_EQ(host.log(), Lines{"DeleteBlobFile B1, '', 6, veraltet"});
}

TEST_F(AttachmentsTest, KeysAreListedWithCommas) {
    host.answer_blobs("K1", blobs({blob("B1", 6, "a"), blob("B2", 7, "b")}));
    EXPECT_EQ(attachments.BLOB_GetDsnCommaList("K1"), "B1,B2");
    EXPECT_EQ(attachments.BLOB_GetDsnCommaList("K2"), "");
}

TEST_F(AttachmentsTest, FilenameIsTheHosts) {
    EXPECT_EQ(attachments.BLOB_GetFilename("B1"), "C:\\Quelle.pdf");
    EXPECT_EQ(host.log(), Lines{"GetSourceFilename B1"});
}

TEST_F(AttachmentsTest, SaveAsAtTheEndGivesNothing) {
    EXPECT_EQ(attachments.BLOB_SaveAs(host.record_set({}), target.text()), "");
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(AttachmentsTest, SaveAsMovesStoredContentOutOfTheHostsFile) {
    folder.write("temp1", "Inhalt");
    host.set_opened_file(folder.file("temp1"));
    const RecordSet rs = host.record_set(row(blob("B1", 6, "expose.pdf")));
    EXPECT_EQ(attachments.BLOB_SaveAs(rs, target.text()), target.file("expose.pdf"));
    EXPECT_EQ(host.log(), Lines{"OpenBlobFile B1, K1, 6"});
    EXPECT_EQ(target.read("expose.pdf"), "Inhalt");
    EXPECT_FALSE(std::filesystem::exists(folder.file("temp1")));
}

TEST_F(AttachmentsTest, SaveAsAsksForOtherKindsByTheirKind) {
    folder.write("temp1", "Inhalt");
    host.set_opened_file(folder.file("temp1"));
    const RecordSet rs = host.record_set(row(blob("B1", BLOBTYPE_WORD, "expose.doc")));
    EXPECT_EQ(attachments.BLOB_SaveAs(rs, target.text(), "neu.doc"), target.file("neu.doc"));
    EXPECT_EQ(host.log(), Lines{"OpenBlobFile B1, K1, 1"});
}

TEST_F(AttachmentsTest, SaveAsCopiesTheFileOfALinkOverAnOldOne) {
    folder.write("a.pdf", "neu");
    target.write("b.pdf", "alt");
    const RecordSet rs = host.record_set(row(blob("B1", 7, folder.file("a.pdf"))));
    EXPECT_EQ(attachments.BLOB_SaveAs(rs, target.text(), "b.pdf"), target.file("b.pdf"));
    EXPECT_EQ(target.read("b.pdf"), "neu");
    EXPECT_EQ(folder.read("a.pdf"), "neu");
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(AttachmentsTest, SaveAsCopiesTheFolderOfALinkAndGivesThePath) {
    std::filesystem::create_directory(folder.file("bilder"));
    folder.write("bilder/1.jpg", "Bild");
    const RecordSet rs = host.record_set(row(blob("B1", 7, folder.file("bilder"))));
    const std::string path = target.file("kopie");
    EXPECT_EQ(attachments.BLOB_SaveAs(rs, path, "egal"), path);
    EXPECT_EQ(target.read("kopie/1.jpg"), "Bild");
}

TEST_F(AttachmentsTest, SaveAsOfALinkThatLeadsNowhereWritesNothing) {
    const RecordSet rs = host.record_set(row(blob("B1", 7, folder.file("weg.pdf"))));
    EXPECT_EQ(attachments.BLOB_SaveAs(rs, target.text(), "b.pdf"), "");
    EXPECT_TRUE(std::filesystem::is_empty(target.path()));
}

TEST_F(AttachmentsTest, CopyTakesContentAndLinksAndPassesOverOtherKinds) {
    folder.write("temp1", "Inhalt");
    host.set_opened_file(folder.file("temp1"));
    host.answer_blobs("K1", blobs({blob("B1", 6, "a.pdf", std::int16_t{1}), blob("B2", 7, "b.pdf"),
                                   blob("B3", 1, "c.doc")}));
    EXPECT_EQ(attachments.BLOB_Copy("K1", "K2"), 2);
    const std::string opened = folder.file("temp1");
    EXPECT_EQ(
        host.log(),
        (Lines{"GetBlobInfos K1", "OpenBlobFile B1, K1, 6", "SaveBlobFile " + opened + ", K2, 6",
               "SaveBlobFile " + opened + ", K2, 6, BLOB-1, Wahr", "SaveBlobFile b.pdf, K2, 7"}));
    EXPECT_TRUE(std::filesystem::exists(opened));
}

TEST_F(AttachmentsTest, CopyLeavesOutWhatHasNoContentAndNoPath) {
    host.set_opened_file(folder.file("weg"));
    host.answer_blobs("K1", blobs({blob("B1", 6, "a.pdf"), blob("B2", 7, "")}));
    EXPECT_EQ(attachments.BLOB_Copy("K1", "K2"), 0);
    EXPECT_EQ(host.log(), (Lines{"GetBlobInfos K1", "OpenBlobFile B1, K1, 6"}));
}

TEST_F(AttachmentsTest, CopyTakesANullMarkAsNotSent) {
    host.answer_blobs("K1", blobs({blob("B1", 7, "a.pdf", Null{})}));
    EXPECT_EQ(attachments.BLOB_Copy("K1", "K2"), 1);
    EXPECT_EQ(host.log(), (Lines{"GetBlobInfos K1", "SaveBlobFile a.pdf, K2, 7"}));
}

TEST_F(AttachmentsTest, EverythingIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { attachments.AKT_Blob_Add("K1", "a.pdf"); });
    expect_error_number(601, [&] { attachments.BLOB_Del("B1", ""); });
    expect_error_number(601, [&] { attachments.BLOB_GetInfo("K1"); });
    expect_error_number(601, [&] { attachments.BLOB_GetFilename("B1"); });
    expect_error_number(601, [&] { attachments.BLOB_Copy("K1", "K2"); });
}

}  // namespace
}  // namespace cvdeveloper
