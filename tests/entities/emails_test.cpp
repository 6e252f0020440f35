#include "cvdeveloper/entities/emails.h"

#include "cvdeveloper/automation/conversions.h"
#include "entities/record_test.h"
#include "platform/clock.h"

namespace cvdeveloper {
namespace {

class EmailsTest : public RecordTest {
  protected:
    EmailsTest() { answer_std("Kennung_AKT", "T-1"); }

    // What was written down, with the moment of creation checked and taken out.
    [[nodiscard]] Lines log_without_moment(Date before) const {
        const std::string column = "deferred_delivery_time = ";
        Lines lines = host.log();
        for (std::string& line : lines) {
            if (line.starts_with(column + "#")) {
                const std::string text = line.substr(column.size() + 1);
                const Date moment = to_date(text.substr(0, text.size() - 1));
                // Both are whole seconds; the text loses the last bits.
                EXPECT_NEAR(moment.days, before.days, 10.0 / 86'400);
                line = column + "now";
            }
        }
        return lines;
    }

    Emails emails{session};
};

TEST_F(EmailsTest, EmailIsAnActivityWithTheMailColumnsFirst) {
    const Date before = now();
    EXPECT_EQ(emails.AKT_CreateEMail("ART", "an@example.org", "von@example.org", "Betreff", "Text",
                                     "", "cc@example.org", "bcc@example.org", true, Date{1},
                                     Date{2}, Date{3}, Date{4}, Date{5}, "S1", "S2", "EMSK", "AD1",
                                     "AD2", "OBJ", "ANF", "PRO", "AKTE", "VER", "DET", "ROOT"),
              "GUID-1");
    EXPECT_EQ(log_without_moment(before), together({{"SELECT * FROM AKT  WHERE 1=2",
                                                     "AddNew",
                                                     "DSN = 'GUID-1'",
                                                     "SELECT Kennung_AKT FROM Std",
                                                     "Kennung = 'T-1'",
                                                     "Priorität = 1",
                                                     "FArchiv = 0",
                                                     "Art_Dsn = 'ART'",
                                                     "MailTo = 'an@example.org'",
                                                     "MailFrom = 'von@example.org'",
                                                     "cc = 'cc@example.org'",
                                                     "bcc = 'bcc@example.org'",
                                                     "Subject = 'Betreff'",
                                                     "Notiz = 'Text'",
                                                     "Erledigt = 1",
                                                     "Datum = #31.12.1899#",
                                                     "Datum_Bis = #01.01.1900#",
                                                     "Vorlage = #02.01.1900#",
                                                     "Alarm = #03.01.1900#",
                                                     "Loeschdatum = #04.01.1900#",
                                                     "Stichwort1 = 'S1'",
                                                     "Stichwort2 = 'S2'",
                                                     "Emsk_Dsn = 'EMSK'",
                                                     "AD_Dsn = 'AD1'",
                                                     "AD_B_Dsn = 'AD2'",
                                                     "OBJ_Dsn = 'OBJ'",
                                                     "ANF_Dsn = 'ANF'",
                                                     "Projekte_Dsn = 'PRO'",
                                                     "Akten_Dsn = 'AKTE'",
                                                     "Verträge_Dsn = 'VER'",
                                                     "Akt_Dsn = 'ROOT'",
                                                     "deferred_delivery_time = now",
                                                     "delivery_state = 2",
                                                     "CurrentUserRS",
                                                     "from_ben_dsn = 'USER'"},
                                                    saving("AKTMKM")}));
}

TEST_F(EmailsTest, SenderAndTypeAreTheUsersWhereNoneIsGiven) {
    emails.AKT_CreateEMail();
    const Lines log = host.log();
    ASSERT_GT(log.size(), 12U);
    EXPECT_EQ(Lines(log.begin() + 7, log.begin() + 12),
              (Lines{"CurrentUserRS", "CurrentUserRS", "Art_Dsn = 'MAILART'", "MailTo = ''",
                     "MailFrom = 'chef@example.org'"}));
}

TEST_F(EmailsTest, UserWithoutATypeForEmailsGivesNone) {
    host.set_user({{"DSN", "USER"},
                   {"Email", Null{}},
                   {"FAXART_DSN", Null{}},
                   {"Rechteschablonen", ""},
                   {"STD_MKM1", ""},
                   {"STD_MKM2", ""},
                   {"STD_MKM3", ""},
                   {"STD_MKM4", ""},
                   {"STD_MKM5", ""}});
    emails.AKT_CreateEMail();
    EXPECT_EQ(first_written("Art_Dsn"), "Null");
    EXPECT_EQ(first_written("MailFrom"), "''");
    EXPECT_EQ(first_written("ACL"), "''");
}

TEST_F(EmailsTest, DetailSheetIsTakenAndNotStored) {
    emails.AKT_CreateEMail("", "", "", "", "", "", "", "", false, {}, {}, {}, {}, {}, "", "", "",
                           "", "", "", "", "", "", "", "DET");
    EXPECT_EQ(first_written("Details_Dsn"), "not written");
}

TEST_F(EmailsTest, SubjectIsCutAndTheBodyIsNot) {
    const std::string text(300, 'x');
    emails.AKT_CreateEMail("", "", "", text, text);
    EXPECT_EQ(first_written("Subject"), "'" + std::string(256, 'x') + "'");
    EXPECT_EQ(first_written("Notiz"), "'" + text + "'");
}

TEST_F(EmailsTest, FilesAreLinkedAndMarkedBetweenSavingAndFeatures) {
    emails.AKT_CreateEMail("", "", "", "", "", "a.pdf | b c.pdf");
    const Lines log = host.log();
    const auto saved = std::find(log.begin(), log.end(), "Update");
    ASSERT_NE(saved, log.end());
    EXPECT_EQ(
        Lines(saved + 1, log.end()),
        together(
            {{"SaveBlobFile a.pdf, GUID-1, 7", "SaveBlobFile a.pdf, GUID-1, 7, BLOB-1, Wahr",
              "SaveBlobFile b c.pdf, GUID-1, 7", "SaveBlobFile b c.pdf, GUID-1, 7, BLOB-2, Wahr"},
             features("AKTMKM")}));
}

TEST_F(EmailsTest, EmptyElementOfTheListIsPassedOnAndOneAtItsEndIsNone) {
    emails.AKT_CreateEMail("", "", "", "", "", "a||b|");
    Lines files;
    for (const std::string& line : host.log()) {
        if (line.starts_with("SaveBlobFile") && !line.ends_with("Wahr")) {
            files.push_back(line);
        }
    }
    EXPECT_EQ(files, (Lines{"SaveBlobFile a, GUID-1, 7", "SaveBlobFile , GUID-1, 7",
                            "SaveBlobFile b, GUID-1, 7"}));
}

TEST_F(EmailsTest, FailedSavingAttachesNothing) {
    host.refuse_update(AutomationError(-2147217887, "Host", "gesperrt"));
    expect_error_number(-2147217887, [&] { emails.AKT_CreateEMail("", "", "", "", "", "a.pdf"); });
    EXPECT_EQ(host.log().back(), "Update");
}

TEST_F(EmailsTest, EmailIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { emails.AKT_CreateEMail(); });
}

}  // namespace
}  // namespace cvdeveloper
