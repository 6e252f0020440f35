#include "host/session/application.h"

#include <sstream>

#include "cvdeveloper/application.h"
#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/conversions.h"
#include "host/folder/host_folder.h"
#include "host/host_test.h"
#include "host/register.h"

namespace cvdeveloper::standalone::testing {
namespace {

class RunningApplication : public SampleTest {
  protected:
    ~RunningApplication() override {
        library->Corvanta_Done();
        clear_registry();
    }
    std::string shown() {
        std::string text = terminal.str();
        terminal.str("");
        return text;
    }

    Ref<Application> start() {
        register_standalone_host();
        return start_application(host_path(), "chef", "",
                                 std::make_shared<TerminalDisplay>(terminal));
    }

    std::ostringstream terminal;
    Ref<Application> running = start();
    Ref<cvdeveloper::Application> library = make_object<cvdeveloper::Application>();
};

TEST_F(RunningApplication, IsFoundByTheLibrary) {
    library->Corvanta_InitApplication();
    EXPECT_EQ(library->Corvanta_InitType(), INITTYPE_APPLICATION);
    EXPECT_EQ(library->Corvanta_Application(), ObjectRef(running));
    EXPECT_EQ(library->Corvanta_Folder(), host_path());
    EXPECT_TRUE(library->Corvanta_IsAdmin());
    EXPECT_EQ(library->Corvanta_DbVersion(), schema_version);
    EXPECT_TRUE(library->oUtil());
    EXPECT_TRUE(library->oDbIni());
}

TEST_F(RunningApplication, MayBeHandedToTheLibrary) {
    register_active_object("Corvanta.Application", nullptr);
    library->Corvanta_SetApplication(Variant(running));
    EXPECT_EQ(library->Corvanta_InitType(), INITTYPE_APPLICATION);
}

TEST_F(RunningApplication, AnswersToItsMembersNames) {
    EXPECT_EQ(running->class_name(), "Corvanta.Application");
    EXPECT_EQ(running->get("IsLoggedIn"), Variant(true));
    EXPECT_EQ(running->get("Folder"), Variant(host_path()));
    EXPECT_EQ(running->get("VersionBuild"), Variant(std::int32_t{133}));
    const RecordSet std_row(to_object(running->get("STDRS")));
    EXPECT_EQ(std_row.value("Ort"), Variant("Musterstadt"));
    const RecordSet user(to_object(running->get("CurrentUserRS")));
    EXPECT_EQ(user.value("Login_Name"), Variant("chef"));
    EXPECT_EQ(running->call("Get_Platzhalter", Variant(std_row), "ort", ""),
              Variant("Musterstadt"));
    EXPECT_EQ(to_object(running->call("Panes", "F_Unsinn")), nullptr);
}

TEST_F(RunningApplication, GivesTheFolderWithoutASeparatorAtItsEnd) {
    EXPECT_EQ(start_application(host_path() + "/", "chef", "")->Folder(), host_path());
    EXPECT_EQ(start_application(host_path() + "\\", "chef", "")->Folder(), host_path());
}

TEST_F(RunningApplication, IsNotReplacedByOneThatDoesNotStart) {
    EXPECT_EQ(error_of([&] { start_application(host_path(), "chef", "falsch"); }).description(),
              "Die Anmeldung von 'chef' ist fehlgeschlagen: Benutzer oder Kennwort stimmt nicht.");
    EXPECT_EQ(active_object("Corvanta.Application"), ObjectRef(running));
}

TEST_F(RunningApplication, WritesInUnitsOfWorkAndTransactions) {
    library->Corvanta_InitApplication();
    ASSERT_NE(running->unit_of_work(), nullptr);
    const std::string key = library->AKT_Create("", "Anruf");
    EXPECT_EQ(to_text(library->oBase()->Sql_FindByDSN("AKT", key).value("Subject")), "Anruf");
    running->call("BeginTrans");
    library->AKT_DeleteByDsn(key);
    running->call("RollbackTrans");
    EXPECT_FALSE(library->oBase()->Sql_FindByDSN("AKT", key).at_end());
}

TEST_F(RunningApplication, HasTheAttachmentsAndHolidaysOfItsOffice) {
    library->Corvanta_InitApplication();
    EXPECT_TRUE(library->oBlob());
    EXPECT_EQ(library->oBase()->CV_CreateProgress()->class_name(), "clqexstdc10.cProgress");
    const ObjectRef holidays = create_object("clqexstdc10.cLegalHolidays");
    EXPECT_EQ(holidays->get("Bundesland"), Variant("Nordrhein-Westfalen"));
}

TEST_F(RunningApplication, FillsTheLettersPlaceholders) {
    library->Corvanta_InitApplication();
    const RecordSet rs = library->AD_Find("Kennung='A-100004'", "");
    EXPECT_EQ(library->oTools()->ReplacePlatzhalter("{BRIEFANREDE}, {Unsinn}{Sitz}", rs,
                                                    "SELECT Ort AS Sitz FROM Std", false, "?"),
              "Sehr geehrter Herr Zinsmeier, ?Musterstadt");
}

TEST_F(RunningApplication, ShowsTheFormOfTheRecordThatTheLibraryAsksFor) {
    library->Corvanta_InitApplication();
    library->oBase()->Pane_FindDSN("f_fldart", "FA000000-0000-4000-8000-000000000013");
    EXPECT_EQ(shown(),
              "Formular F_FldArt\n"
              "Bedingung: DSN='FA000000-0000-4000-8000-000000000013'\n"
              "Ein Datensatz gefunden:\n"
              "  DSN = FA000000-0000-4000-8000-000000000013\n"
              "  STAMP = 0\n"
              "  Aktiv = 1\n"
              "  Kürzel = Balkon\n"
              "  Typ = 4\n"
              "  Sortierung = 0130\n"
              "  akt = 0\n"
              "  obj = 1\n"
              "  ad = 0\n"
              "  anf = 1\n"
              "  akten = 0\n"
              "  projekte = 0\n"
              "  verträge = 0\n"
              "  details = 0\n"
              "  NEU_BEN_DSN = BE000000-0000-4000-8000-000000000001\n"
              "  ANGELEGT = 02.01.2026 08:00:00\n"
              "  ÄN_BEN_DSN = BE000000-0000-4000-8000-000000000001\n"
              "  TOUCH = 02.01.2026 08:00:00\n");
}

TEST_F(RunningApplication, KeepsWhatAFormHasFoundUntilItIsShown) {
    library->Corvanta_InitApplication();
    library->oBase()->Pane_Find("F_AD", "Kennung LIKE 'A-10000%'");
    EXPECT_EQ(shown(), "");
    library->oBase()->Pane_Show("F_AD");
    const std::string page = shown();
    EXPECT_TRUE(
        page.starts_with("Formular F_AD\n"
                         "Bedingung: Kennung LIKE 'A-10000%'\n"
                         "9 Datensätze gefunden, der erste:\n"
                         "  DSN = AD000000-0000-4000-8000-000000000001\n"))
        << page;
    EXPECT_NE(page.find("  TELEFON = 0201 0000101 0171 3920001 Büro\n"), std::string::npos) << page;
}

TEST_F(RunningApplication, SaysWhereAFormHasNothingToShow) {
    library->Corvanta_InitApplication();
    library->oBase()->Pane_Show("F_VERTRAEGE");
    EXPECT_EQ(shown(),
              "Formular F_VERTRÄGE\n"
              "Bedingung: 1=2\n"
              "Kein Datensatz gefunden.\n");
    library->oBase()->Pane_FindDSN("F_AKT", "x'y");
    EXPECT_EQ(shown(),
              "Formular F_AKT\n"
              "Bedingung: DSN='x''y'\n"
              "Kein Datensatz gefunden.\n");
}

TEST_F(RunningApplication, ShowsNoRecordThatHasBeenDeletedSinceItWasFound) {
    library->Corvanta_InitApplication();
    const std::string key = library->AKT_Create("", "weg");
    library->oBase()->Pane_Find("F_AKT", "Subject = 'weg'");
    library->AKT_DeleteByDsn(key);
    library->oBase()->Pane_Show("F_AKT");
    EXPECT_EQ(shown(),
              "Formular F_AKT\n"
              "Bedingung: Subject = 'weg'\n"
              "Kein Datensatz gefunden.\n");
}

TEST_F(RunningApplication, PassesOnTheDatabaseErrorOfABadCondition) {
    library->Corvanta_InitApplication();
    const AutomationError error =
        error_of([&] { library->oBase()->Pane_Find("F_AD", "Unsinn = 1"); });
    EXPECT_EQ(error.number(), -2147217900);
    EXPECT_NE(error.description().find("Unsinn"), std::string::npos) << error.description();
}

TEST_F(RunningApplication, IgnoresFormsThatItDoesNotHave) {
    library->Corvanta_InitApplication();
    for (const char* form : {"F_UNSINN", "AKT", "F_", "", "F_cv_password", "F_Version"}) {
        library->oBase()->Pane_FindDSN(form, "x");
    }
    EXPECT_EQ(shown(), "");
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
