#include "host/maintenance/backup.h"

#include <fstream>
#include <thread>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/enumerations.h"
#include "host/errors.h"
#include "host/host_test.h"
#include "host/maintenance/check.h"
#include "host/services/attachment_checks.h"
#include "host/services/blob.h"

namespace cvdeveloper::standalone::testing {
namespace {

namespace fs = std::filesystem;

class ABackup : public SampleTest {
  protected:
    [[nodiscard]] std::string file() const { return folder.path("sicherung.tar"); }
    [[nodiscard]] std::string again() const { return folder.path("wieder"); }
    std::string attach(const std::string& content) {
        const std::string source = folder.path("quelle.txt");
        std::ofstream(source) << content;
        return blob().SaveBlobFile(source, "OWNER", BLOBTYPE_ATTACHMENT);
    }
    host::Blob& blob() { return dynamic_cast<host::Blob&>(*connector->Blob()); }
    void back_up_now() { back_up(host_path(), file(), nothing_to_tell); }
    void restore_now() { restore(file(), again(), nothing_to_tell); }
    [[nodiscard]] Ref<Connector> log_on_again() const {
        auto restored = make_object<Connector>();
        restored->Logon(again(), "chef", "");
        return restored;
    }
    std::string refusal() {
        const AutomationError error = error_of([&] { restore_now(); });
        EXPECT_EQ(error.number(), static_cast<std::int32_t>(HostError::Damaged));
        EXPECT_FALSE(fs::exists(again()));
        EXPECT_FALSE(fs::exists(again() + ".neu"));
        return error.description();
    }
};

TEST_F(ABackup, MakesTheSameFolderAgain) {
    const std::string key = attach("Inhalt");
    fs::create_directory(host_path() + "/pic.obj/unten");
    std::ofstream(host_path() + "/pic.obj/unten/Küche.jpg") << "Bild";
    std::ofstream(host_path() + "/corvanta.ini") << "[Kennungen]\nStellen=8\n";
    back_up_now();
    restore_now();
    const Ref<Connector> restored = log_on_again();
    for (const char* statement : {"SELECT count(*) FROM AKT", "SELECT sum(length(Notiz)) FROM OBJ",
                                  "SELECT max(TOUCH) FROM AD"}) {
        EXPECT_EQ(restored->GetRecordset(statement, {}).value_at(0), single(statement));
    }
    EXPECT_EQ(text_of_file(to_text(restored->Blob()->call("OpenBlobFile", key))), "Inhalt");
    EXPECT_EQ(text_of_file(again() + "/pic.obj/unten/Küche.jpg"), "Bild");
    EXPECT_EQ(text_of_file(again() + "/corvanta.ini"), "[Kennungen]\nStellen=8\n");
    EXPECT_TRUE(check_folder(again(), nothing_to_tell).problems.empty());
}

TEST_F(ABackup, IsForItsOwnerAlone) {
    back_up_now();
    EXPECT_EQ(fs::status(file()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 2);
}

TEST_F(ABackup, IsNeverWrittenOverAnotherFile) {
    std::ofstream(file()) << "meins";
    EXPECT_EQ(error_of([&] { back_up_now(); }).description(),
              "Die Datei '" + file() + "' gibt es schon.");
    EXPECT_EQ(text_of_file(file()), "meins");
}

TEST_F(ABackup, IsOfOneMomentWhileOthersWriteAndDelete) {
    std::jthread writer([&](const std::stop_token& stop) {
        const Ref<Connector> other = log_on();
        auto& attachments = dynamic_cast<host::Blob&>(*other->Blob());
        const std::string source = folder.path("andere.txt");
        std::string key;
        for (int i = 0; !stop.stop_requested(); ++i) {
            std::ofstream(source) << std::string(50'000, static_cast<char>('a' + i % 26));
            other->BeginTrans();
            if (!key.empty()) {
                attachments.DeleteBlobFile(key, "", BLOBTYPE_ATTACHMENT, "");
            }
            key = attachments.SaveBlobFile(source, "OWNER", BLOBTYPE_ATTACHMENT);
            RecordSet rs = other->GetRecordset("SELECT * FROM AKT WHERE 1=2", {});
            rs.add_new();
            rs.set("DSN", key);
            other->UpdateRecordset(rs, {});
            other->CommitTrans();
        }
    });
    for (int i = 0; i < 10; ++i) {
        const std::string backup = file() + std::to_string(i);
        const std::string copy = again() + std::to_string(i);
        back_up(host_path(), backup, nothing_to_tell);
        restore(backup, copy, nothing_to_tell);
        Connector restored;
        restored.Logon(copy, "chef", "");
        expect_rows_and_files_agree(copy, restored);
        // Attachment and record come in one transaction.
        EXPECT_TRUE(restored
                        .GetRecordset("SELECT DSN FROM Blob WHERE strStoredName IS NOT NULL AND "
                                      "DSN NOT IN (SELECT DSN FROM AKT)",
                                      {})
                        .at_end());
    }
    writer.request_stop();
    writer.join();
    connector = log_on();
    EXPECT_TRUE(check_folder(host_path(), nothing_to_tell).problems.empty());
}

TEST_F(ABackup, GoesWithAnAttachmentWhoseContentIsLost) {
    const std::string key = attach("Inhalt");
    fs::remove(host_path() + "/Anlagen/" + *stored_files(host_path()).begin());
    const AutomationError error = error_of([&] { back_up_now(); });
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(HostError::Damaged));
    EXPECT_EQ(error.description(),
              "Der Inhalt der Anlage '" + key + "' fehlt; cvdev check sagt, was noch fehlt.");
    EXPECT_FALSE(fs::exists(file()));
    EXPECT_FALSE(fs::exists(file() + ".neu"));
}

TEST_F(ABackup, IsNotRestoredOverAFolder) {
    back_up_now();
    fs::create_directory(again());
    restore_now();
    EXPECT_EQ(error_of([&] { restore_now(); }).description(),
              "Den Ordner '" + again() + "' gibt es schon, und er ist nicht leer.");
}

TEST_F(ABackup, ThatIsCutOffIsRefused) {
    attach(std::string(100'000, 'x'));
    back_up_now();
    const std::string whole = text_of_file(file());
    for (const std::size_t size : {whole.size() / 2, whole.size() - 60'000, std::size_t{1024}}) {
        std::ofstream(file(), std::ios::binary) << whole.substr(0, size);
        const std::string text = refusal();
        EXPECT_TRUE(text.find("beschädigt") != std::string::npos ||
                    text.find("unvollständig") != std::string::npos)
            << text;
    }
}

TEST_F(ABackup, WithOtherContentIsRefused) {
    const std::string key = attach(std::string(100'000, 'x'));
    back_up_now();
    std::string content = text_of_file(file());
    content[content.find(std::string(1000, 'x')) + 500] = 'y';
    std::ofstream(file(), std::ios::binary) << content;
    EXPECT_EQ(refusal(), "Die Sicherung '" + file() + "' ist nicht in Ordnung: Die Anlage '" + key +
                             "' hat einen anderen Inhalt als den gespeicherten.");
}

TEST_F(ABackup, ThatIsNoneIsRefused) {
    std::ofstream(file()) << "Text";
    EXPECT_NE(refusal().find("beschädigt"), std::string::npos);
    fs::remove(file());
    EXPECT_EQ(error_of([&] { restore_now(); }).number(), 53);
}

TEST_F(ABackup, LeadsOutOfTheFolderNowhere) {
    back_up_now();
    std::string content = text_of_file(file());
    const std::size_t at = content.find("corvanta.ini");
    // The name of an entry and its checksum: the sum of the header's bytes.
    const auto change = [&](const std::string& name) {
        std::string changed = content;
        changed.replace(at, 14, name);
        changed.replace(at + 148, 8, "        ");
        unsigned sum = 0;
        for (std::size_t i = 0; i < 512; ++i) {
            sum += static_cast<unsigned char>(changed[at + i]);
        }
        std::array<char, 8> digits{};
        std::snprintf(digits.data(), digits.size(), "%06o", sum);
        changed.replace(at + 148, 7, std::string(digits.data(), 7));
        std::ofstream(file(), std::ios::binary) << changed;
    };
    for (const std::string name : {"pic.obj/../../", "../corvanta.i\0", "/tmp/boese.ini"}) {
        change((name + std::string(14, '\0')).substr(0, 14));
        const std::string text = refusal();
        EXPECT_NE(text.find("was in keine gehört"), std::string::npos) << text;
    }
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
