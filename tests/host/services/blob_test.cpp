#include "host/services/blob.h"

#include <sodium.h>

#include <array>
#include <fstream>
#include <iterator>
#include <set>
#include <thread>

#include "cvdeveloper/automation/conversions.h"
#include "host/errors.h"
#include "host/host_test.h"
#include "host/services/attachment_checks.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "support/temp_setting.h"

namespace cvdeveloper::standalone::testing {
namespace {

constexpr std::int32_t content_kind = 6;
constexpr std::int32_t link_kind = 7;

class BlobTest : public HostTest {
  protected:
    [[nodiscard]] host::Blob& blob() const { return dynamic_cast<host::Blob&>(*connector->Blob()); }
    std::string write(const std::string& name, const std::string& content) const {
        std::ofstream(paths::to_system(folder.path(name)), std::ios::binary) << content;
        return folder.path(name);
    }
    std::string add(const std::string& name, const std::string& content) {
        return blob().SaveBlobFile(write(name, content), "OWNER", content_kind);
    }
    Variant value(std::string_view column, const std::string& key) {
        return single("SELECT " + std::string(column) + " FROM Blob WHERE DSN='" + key + "'");
    }
    std::string opened(const std::string& key) {
        return text_of_file(blob().OpenBlobFile(key, "OWNER", content_kind));
    }
    [[nodiscard]] std::set<std::string> stored() const { return stored_files(host_path()); }
    void expect_consistent() { expect_rows_and_files_agree(host_path(), *connector); }
    static void expect_error(std::int32_t number, const std::string& part,
                             const std::function<void()>& action) {
        const AutomationError error = error_of(action);
        EXPECT_EQ(error.number(), number) << error.what();
        EXPECT_NE(error.description().find(part), std::string::npos) << error.description();
    }

  private:
    const TempSetting setting_{folder.path().c_str()};
};

TEST_F(BlobTest, ContentIsStoredWithSizeAndHashAndReadBack) {
    const std::string key = add("Vertrag.pdf", "abc");
    EXPECT_EQ(key.size(), 36U);
    const RecordSet rs = blob().GetBlobInfos("OWNER");
    EXPECT_EQ(rs.value("Dsn"), Variant(key));
    EXPECT_EQ(rs.value("uidLINK_DSN"), Variant("OWNER"));
    EXPECT_EQ(rs.value("lngTyp"), Variant(content_kind));
    EXPECT_EQ(rs.value("strsourcefilename"), Variant(folder.path("Vertrag.pdf")));
    EXPECT_EQ(rs.value("mail_attachment"), Variant(std::int16_t{0}));
    EXPECT_EQ(rs.value("dblSize"), Variant(3.0));
    EXPECT_EQ(rs.value("strSha256"),
              Variant("ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"));
    EXPECT_EQ(opened(key), "abc");
    EXPECT_EQ(blob().GetSourceFilename(key), folder.path("Vertrag.pdf"));
    expect_consistent();
}

TEST_F(BlobTest, EmptyAndLargeFilesAreStoredWhole) {
    std::string large(5'000'001, 'x');
    for (std::size_t i = 0; i < large.size(); i += 997) {
        large[i] = static_cast<char>(i);
    }
    EXPECT_EQ(opened(add("leer", "")), "");
    EXPECT_EQ(opened(add("groß.bin", large)), large);
    expect_consistent();
}

TEST_F(BlobTest, EveryKindButTheLinkStoresItsContent) {
    for (std::int32_t kind = 1; kind <= 6; ++kind) {
        blob().SaveBlobFile(write("a", "x"), "OWNER", kind);
    }
    EXPECT_EQ(stored().size(), 6U);
    expect_error(5, "lngTyp 8", [&] { blob().SaveBlobFile(write("a", "x"), "OWNER", 8); });
    expect_error(5, "lngTyp 0", [&] { blob().SaveBlobFile(write("a", "x"), "OWNER", 0); });
}

TEST_F(BlobTest, LinkKeepsThePathAndIsNeverLookedAt) {
    const std::string key = blob().SaveBlobFile("C:\\gibt\\es nicht.doc", "OWNER", link_kind);
    EXPECT_EQ(blob().SaveBlobFile("C:\\gibt\\es nicht.doc", "OWNER", link_kind, key, true), key);
    EXPECT_EQ(blob().GetSourceFilename(key), "C:\\gibt\\es nicht.doc");
    EXPECT_EQ(blob().OpenBlobFile(key, "OWNER", link_kind), "C:\\gibt\\es nicht.doc");
    EXPECT_EQ(value("mail_attachment", key), Variant(std::int16_t{1}));
    EXPECT_EQ(value("strStoredName", key), Variant(Null{}));
    EXPECT_TRUE(stored().empty());
}

TEST_F(BlobTest, OpenedFileIsTheCallersOwnAndKeepsItsName) {
    const std::string key = add("Grundriß EG.png", "bild");
    const std::string one = blob().OpenBlobFile(key, "OWNER", content_kind);
    const std::string two = blob().OpenBlobFile(key, "OWNER", content_kind);
    EXPECT_NE(one, two);
    EXPECT_TRUE(one.starts_with(folder.path()));
    EXPECT_EQ(paths::split(one).name, "Grundriß EG.png");
    files::remove_file(one);
    EXPECT_EQ(opened(key), "bild");
}

TEST_F(BlobTest, SavingAgainUnderTheKeyOnlyMarksContentThatIsUnchanged) {
    const std::string path = write("a.txt", "eins");
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    const std::string key = blob().SaveBlobFile(path, "OWNER", content_kind);
    const auto before = stored();
    EXPECT_EQ(blob().SaveBlobFile(path, "OWNER", content_kind, key, true), key);
    EXPECT_EQ(stored(), before);
    EXPECT_EQ(value("mail_attachment", key), Variant(std::int16_t{1}));
    EXPECT_EQ(value("STAMP", key), Variant(std::int32_t{1}));
}

TEST_F(BlobTest, SavingAgainFromAnotherSessionComparesTheContent) {
    const std::string key = add("a.txt", "eins");
    const auto before = stored();
    connector = log_on();
    blob().SaveBlobFile(folder.path("a.txt"), "OWNER", content_kind, key, true);
    EXPECT_EQ(stored(), before);
    EXPECT_EQ(value("mail_attachment", key), Variant(std::int16_t{1}));
}

TEST_F(BlobTest, SavingAgainReplacesContentThatHasChanged) {
    const std::string key = add("a.txt", "eins");
    // The same size and, as far as the clock can tell, maybe the same moment.
    blob().SaveBlobFile(write("a.txt", "zwei"), "OWNER", content_kind, key, true);
    EXPECT_EQ(opened(key), "zwei");
    EXPECT_EQ(stored().size(), 1U);
    expect_consistent();
}

TEST_F(BlobTest, AttachmentThatBecomesALinkLosesItsContent) {
    const std::string key = add("a.txt", "eins");
    blob().SaveBlobFile("/anderswo/a.txt", "OWNER", link_kind, key, false);
    EXPECT_TRUE(stored().empty());
    EXPECT_EQ(blob().GetSourceFilename(key), "/anderswo/a.txt");
    EXPECT_EQ(value("strSha256", key), Variant(Null{}));
}

TEST_F(BlobTest, MissingFileIsError53WithItsPath) {
    for (const std::string name : {"fehlt.pdf", "kein/ordner/fehlt.pdf"}) {
        expect_error(53, folder.path(name),
                     [&] { blob().SaveBlobFile(folder.path(name), "OWNER", content_kind); });
    }
    EXPECT_TRUE(blob().GetBlobInfos("OWNER").at_end());
    EXPECT_TRUE(stored().empty());
}

TEST_F(BlobTest, FolderIsNoFile) {
    expect_error(75, folder.path(),
                 [&] { blob().SaveBlobFile(folder.path(), "OWNER", content_kind); });
}

TEST_F(BlobTest, FileThatIsGoneAtTheSecondCallLeavesTheFirstAsItWas) {
    const std::string key = add("a.txt", "eins");
    files::remove_file(folder.path("a.txt"));
    expect_error(53, "a.txt", [&] {
        blob().SaveBlobFile(folder.path("a.txt"), "OWNER", content_kind, key, true);
    });
    EXPECT_EQ(opened(key), "eins");
    EXPECT_EQ(value("mail_attachment", key), Variant(std::int16_t{0}));
}

TEST_F(BlobTest, UnknownKeyIsNamedByEveryOperation) {
    write("a", "x");
    const std::vector<std::function<void()>> actions = {
        [&] { blob().SaveBlobFile(folder.path("a"), "OWNER", content_kind, "NO-SUCH-KEY", true); },
        [&] { blob().SaveBlobFile("link", "OWNER", link_kind, "NO-SUCH-KEY", true); },
        [&] { blob().DeleteBlobFile("NO-SUCH-KEY", "", content_kind, ""); },
        [&] { blob().GetSourceFilename("NO-SUCH-KEY"); },
        [&] { blob().OpenBlobFile("NO-SUCH-KEY", "OWNER", content_kind); }};
    for (const auto& action : actions) {
        expect_error(32811, "'NO-SUCH-KEY'", action);
    }
    EXPECT_TRUE(stored().empty());
}

TEST_F(BlobTest, PathTooLongToKeepIsRefusedNotCut) {
    expect_error(static_cast<std::int32_t>(HostError::ValueRefused), "1000",
                 [&] { blob().SaveBlobFile(std::string(1001, 'x'), "OWNER", link_kind); });
    EXPECT_NO_THROW(blob().SaveBlobFile(std::string(1000, 'x'), "OWNER", link_kind));
}

TEST_F(BlobTest, DeletingTakesRowAndFileAndNeedsTheKeyAlone) {
    const std::string key = add("a.txt", "eins");
    const std::string other = add("b.txt", "zwei");
    blob().DeleteBlobFile(key, "", content_kind, "nicht mehr gebraucht");
    EXPECT_EQ(stored().size(), 1U);
    EXPECT_EQ(opened(other), "zwei");
    const std::string link = blob().SaveBlobFile(folder.path("a.txt"), "OWNER", link_kind);
    blob().DeleteBlobFile(link, "", content_kind, "");
    EXPECT_TRUE(files::file_exists(folder.path("a.txt")));
    expect_consistent();
}

TEST_F(BlobTest, AttachmentsAreListedForTheirOwnerAloneInTheOrderTheyCame) {
    std::vector<std::string> names;
    for (int i = 0; i < 10; ++i) {
        names.push_back("link " + std::to_string(i));
        blob().SaveBlobFile(names.back(), "OWNER", link_kind);
        blob().SaveBlobFile("x", "SOMEBODY ELSE", link_kind);
    }
    std::vector<std::string> listed;
    for (const RecordSet rs = blob().GetBlobInfos("OWNER"); !rs.at_end(); rs.move_next()) {
        listed.push_back(to_text(rs.value("strsourcefilename")));
    }
    EXPECT_EQ(listed, names);
    EXPECT_TRUE(blob().GetBlobInfos("O'Neill").at_end());
}

TEST_F(BlobTest, RolledBackAttachmentLeavesNoFile) {
    connector->BeginTrans();
    add("a.txt", "eins");
    EXPECT_EQ(stored().size(), 1U);
    connector->RollbackTrans();
    EXPECT_TRUE(stored().empty());
    EXPECT_TRUE(blob().GetBlobInfos("OWNER").at_end());
}

TEST_F(BlobTest, RolledBackDeletionAndReplacementKeepTheFile) {
    const std::string deleted = add("a.txt", "eins");
    const std::string replaced = add("b.txt", "zwei");
    connector->BeginTrans();
    blob().DeleteBlobFile(deleted, "", content_kind, "");
    blob().SaveBlobFile(write("b.txt", "drei"), "OWNER", content_kind, replaced, true);
    EXPECT_EQ(opened(replaced), "drei");
    connector->RollbackTrans();
    EXPECT_EQ(opened(deleted), "eins");
    EXPECT_EQ(opened(replaced), "zwei");
    expect_consistent();
}

TEST_F(BlobTest, CommittedTransactionLeavesExactlyTheFilesOfItsRows) {
    const std::string deleted = add("a.txt", "eins");
    connector->BeginTrans();
    blob().DeleteBlobFile(deleted, "", content_kind, "");
    const std::string added = add("b.txt", "zwei");
    EXPECT_EQ(stored().size(), 2U);
    connector->CommitTrans();
    EXPECT_EQ(opened(added), "zwei");
    EXPECT_EQ(stored().size(), 1U);
    expect_consistent();
}

TEST_F(BlobTest, UnitOfWorkHoldsNoLockWhileContentIsCopied) {
    host::UnitOfWork& unit = *connector->unit_of_work();
    unit.enter();
    add_activity("vor der Anlage");
    // The missing file ends the call where copying would begin.
    error_of([&] { blob().SaveBlobFile(folder.path("fehlt"), "OWNER", content_kind); });
    const Ref<Connector> other = log_on();
    EXPECT_FALSE(other->GetRecordset("SELECT DSN FROM AKT", {}).at_end());
    EXPECT_NO_THROW(other->DbIni()->call("SetValue", "a", "b", "c"));
    const std::string key = add("a.txt", "eins");
    unit.leave();
    EXPECT_EQ(opened(key), "eins");
    expect_consistent();
}

TEST_F(BlobTest, LogOnRemovesWhatBrokenOffSessionsLeftAndNothingElse) {
    const std::string key = add("a.txt", "eins");
    const std::string folder_path = host_path() + "/Anlagen/";
    for (const std::string name :
         {"00000000-0000-4000-8000-00000000000A", "00000000-0000-4000-8000-00000000000B.neu",
          "Notizen des Chefs.txt"}) {
        std::ofstream(paths::to_system(folder_path + name)) << "halb";
    }
    connector = log_on();
    EXPECT_EQ(opened(key), "eins");
    EXPECT_EQ(stored().size(), 2U);
    EXPECT_TRUE(files::file_exists(folder_path + "Notizen des Chefs.txt"));
}

TEST_F(BlobTest, LogOnLeavesFilesAloneWhoseRowsAreNotYetCommitted) {
    connector->BeginTrans();
    const std::string key = add("a.txt", "eins");
    const Ref<Connector> before = log_on();
    connector->CommitTrans();
    EXPECT_EQ(opened(key), "eins");
    const Ref<Connector> after = log_on();
    EXPECT_EQ(opened(key), "eins");
}

TEST_F(BlobTest, HostFolderWithoutAttachmentFolderGetsOne) {
    files::remove_folder(host_path() + "/Anlagen");
    connector = log_on();
    EXPECT_EQ(opened(add("a.txt", "eins")), "eins");
}

TEST_F(BlobTest, LostContentIsNamedByItsKey) {
    const std::string key = add("a.txt", "eins");
    files::remove_file(host_path() + "/Anlagen/" + *stored().begin());
    expect_error(53, key, [&] { opened(key); });
}

TEST_F(BlobTest, ShortenedContentIsNotHandedOut) {
    const std::string key = add("a.txt", "eins");
    std::ofstream(paths::to_system(host_path() + "/Anlagen/" + *stored().begin())) << "ei";
    expect_error(static_cast<std::int32_t>(HostError::Damaged), key, [&] { opened(key); });
}

TEST_F(BlobTest, AnswersScriptsByName) {
    const ObjectRef object = connector->Blob();
    const std::string path = write("a.txt", "eins");
    const Variant key = object->call("saveblobfile", path, "OWNER", content_kind);
    object->call("SaveBlobFile", path, "OWNER", content_kind, key, true);
    EXPECT_EQ(object->call("GetSourceFilename", key), Variant(path));
    object->call("DeleteBlobFile", key);
    EXPECT_TRUE(RecordSet(to_object(object->call("GetBlobInfos", "OWNER"))).at_end());
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
