#include "cvdeveloper/entities/activities.h"

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

// 2024-03-01
constexpr double friday = 45352;
constexpr double ten_o_clock = 10.0 / 24;

class ActivitiesTest : public RecordTest {
  protected:
    ActivitiesTest() { answer_std("Kennung_AKT", "T-1"); }

    // An open activity of the first of March 2024, ten o'clock.
    [[nodiscard]] RecordSet open_activity(Variant mask = Null{}) const {
        return host.record_set(row({{"DSN", "K1"},
                                    {"Erledigt", std::int16_t{0}},
                                    {"Datum", Date{friday + ten_o_clock}},
                                    {"Emsk_Dsn", std::move(mask)}}));
    }
    [[nodiscard]] RecordSet type(bool done, bool whole_day, Variant mask = Null{}) const {
        return host.record_set(row({{"Erledigt", static_cast<std::int16_t>(done ? 1 : 0)},
                                    {"Priorität", std::int16_t{2}},
                                    {"Km", 12.5},
                                    {"Kosten", Null{}},
                                    {"PeriodenArt", std::int16_t{3}},
                                    {"PeriodenIntervall", std::int16_t{4}},
                                    {"Vorlage", std::int32_t{2}},
                                    {"Minuten", 90.0},
                                    {"Ohne_Uhrzeit", static_cast<std::int16_t>(whole_day ? 1 : 0)},
                                    {"Default_Emsk_Dsn", std::move(mask)}}));
    }

    Activities activities{session};
};

TEST_F(ActivitiesTest, NewGivesAnUnsavedRowWithKeysPriorityAndArchiveFlag) {
    const RecordSet rs = activities.AKT_New();
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM AKT  WHERE 1=2", "AddNew", "DSN = 'GUID-1'",
                                 "SELECT Kennung_AKT FROM Std", "Kennung = 'T-1'", "Priorität = 1",
                                 "FArchiv = 0"}));
    EXPECT_EQ(rs.value("Priorität"), Variant(std::int16_t{1}));
    EXPECT_EQ(rs.value("FArchiv"), Variant(std::int16_t{0}));
}

TEST_F(ActivitiesTest, CreateWithoutArgumentsWritesEmptyTextsAndNulls) {
    EXPECT_EQ(activities.AKT_Create(), "GUID-1");
    EXPECT_EQ(host.log(), together({{"SELECT * FROM AKT  WHERE 1=2",
                                     "AddNew",
                                     "DSN = 'GUID-1'",
                                     "SELECT Kennung_AKT FROM Std",
                                     "Kennung = 'T-1'",
                                     "Priorität = 1",
                                     "FArchiv = 0",
                                     "Art_Dsn = Null",
                                     "Subject = ''",
                                     "Notiz = ''",
                                     "Erledigt = 0",
                                     "Datum = Null",
                                     "Datum_Bis = Null",
                                     "Vorlage = Null",
                                     "Alarm = Null",
                                     "Loeschdatum = Null",
                                     "Stichwort1 = ''",
                                     "Stichwort2 = ''",
                                     "Emsk_Dsn = Null",
                                     "AD_Dsn = Null",
                                     "AD_B_Dsn = Null",
                                     "OBJ_Dsn = Null",
                                     "ANF_Dsn = Null",
                                     "Projekte_Dsn = Null",
                                     "Akten_Dsn = Null",
                                     "Verträge_Dsn = Null",
                                     "Details_Dsn = Null",
                                     "Akt_Dsn = Null"},
                                    saving("AKTMKM")}));
}

TEST_F(ActivitiesTest, CreateWritesEachArgumentIntoItsColumn) {
    EXPECT_EQ(activities.AKT_Create("ART", "Anruf", "Notiz", true, Date{1}, Date{2}, Date{3},
                                    Date{4}, Date{5}, "S1", "S2", "EMSK", "AD1", "AD2", "OBJ",
                                    "ANF", "PRO", "AKTE", "VER", "DET", "ROOT"),
              "GUID-1");
    const Lines log = host.log();
    ASSERT_GT(log.size(), 28U);
    EXPECT_EQ(Lines(log.begin() + 7, log.begin() + 28),
              (Lines{"Art_Dsn = 'ART'",        "Subject = 'Anruf'",    "Notiz = 'Notiz'",
                     "Erledigt = 1",           "Datum = #31.12.1899#", "Datum_Bis = #01.01.1900#",
                     "Vorlage = #02.01.1900#", "Alarm = #03.01.1900#", "Loeschdatum = #04.01.1900#",
                     "Stichwort1 = 'S1'",      "Stichwort2 = 'S2'",    "Emsk_Dsn = 'EMSK'",
                     "AD_Dsn = 'AD1'",         "AD_B_Dsn = 'AD2'",     "OBJ_Dsn = 'OBJ'",
                     "ANF_Dsn = 'ANF'",        "Projekte_Dsn = 'PRO'", "Akten_Dsn = 'AKTE'",
                     "Verträge_Dsn = 'VER'",   "Details_Dsn = 'DET'",  "Akt_Dsn = 'ROOT'"}));
}

TEST_F(ActivitiesTest, CreateCutsSubjectAndKeywordsButNotTheNote) {
    const std::string text(300, 'x');
    activities.AKT_Create("", text, text, false, {}, {}, {}, {}, {}, text, text);
    EXPECT_EQ(first_written("Subject"), "'" + std::string(256, 'x') + "'");
    EXPECT_EQ(first_written("Notiz"), "'" + text + "'");
    EXPECT_EQ(first_written("Stichwort1"), "'" + std::string(50, 'x') + "'");
    EXPECT_EQ(first_written("Stichwort2"), "'" + std::string(50, 'x') + "'");
}

TEST_F(ActivitiesTest, NoonOfDayZeroIsADateLikeAnyOther) {
    activities.AKT_Create("", "", "", false, Date{0.5}, Date{-1});
    EXPECT_EQ(first_written("Datum"), "#12:00:00#");
    EXPECT_EQ(first_written("Datum_Bis"), "#29.12.1899#");
}

TEST_F(ActivitiesTest, CreateIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error(601, "", "CVDeveloper wurde nicht initialisiert",
                 [&] { activities.AKT_Create(); });
    expect_error(601, "", "CVDeveloper wurde nicht initialisiert", [&] { activities.AKT_New(); });
    expect_error_number(601, [&] { activities.AKT_SetAktArtByDsn("K1", "A1"); });
}

TEST_F(ActivitiesTest, FailedSavingReachesTheCallerAndAddsNoFeatures) {
    host.refuse_update(AutomationError(-2147217887, "Host", "gesperrt"));
    expect_error(-2147217887, "Host", "gesperrt", [&] { activities.AKT_Create(); });
    EXPECT_EQ(host.log().back(), "Update");
}

TEST_F(ActivitiesTest, TypeGivesItsDefaultsAndTheFollowUpDate) {
    RecordSet rs = open_activity();
    activities.AKT_SetAktArt(rs, type(false, false));
    EXPECT_EQ(host.log(), (Lines{"Erledigt = 0", "Priorität = 2", "Km = 12,5", "Betrag = Null",
                                 "PeriodenArt = 3", "PeriodenIntervall = 4",
                                 "Vorlage = #03.03.2024 11:30:00#", "Update"}));
}

TEST_F(ActivitiesTest, TypeWithoutTimeOfDayGivesAWholeDay) {
    RecordSet rs = open_activity();
    activities.AKT_SetAktArt(rs, type(false, true));
    EXPECT_EQ(rs.value("Vorlage"), Variant(Date{friday + 2}));
}

TEST_F(ActivitiesTest, TypeThatIsDoneClosesTheActivityAndFollowsUpOnDayZero) {
    RecordSet rs = open_activity();
    activities.AKT_SetAktArt(rs, type(true, false));
    EXPECT_EQ(rs.value("Erledigt"), Variant(std::int16_t{1}));
    EXPECT_EQ(rs.value("Vorlage"), Variant(Date{}));
}

TEST_F(ActivitiesTest, FollowUpBeforeDayHundredBecomesDayZero) {
    RecordSet rs = host.record_set(
        row({{"Erledigt", std::int16_t{0}}, {"Datum", Date{97.9}}, {"Emsk_Dsn", Null{}}}));
    activities.AKT_SetAktArt(rs, type(false, false));
    EXPECT_EQ(rs.value("Vorlage"), Variant(Date{}));
}

TEST_F(ActivitiesTest, FollowUpOnDayHundredStays) {
    RecordSet rs = host.record_set(
        row({{"Erledigt", std::int16_t{0}}, {"Datum", Date{98}}, {"Emsk_Dsn", Null{}}}));
    activities.AKT_SetAktArt(rs, type(false, true));
    EXPECT_EQ(rs.value("Vorlage"), Variant(Date{100}));
}

TEST_F(ActivitiesTest, OpenActivityWithoutADateIsErrorNullAndIsNotSaved) {
    RecordSet rs = host.record_set(
        row({{"Erledigt", std::int16_t{0}}, {"Datum", Null{}}, {"Emsk_Dsn", Null{}}}));
    expect_error_number(94, [&] { activities.AKT_SetAktArt(rs, type(false, false)); });
    EXPECT_FALSE(anything_saved());
}

TEST_F(ActivitiesTest, EntryMaskIsReplacedOnlyWhereBothHaveOne) {
    RecordSet with_mask = open_activity("ALT");
    activities.AKT_SetAktArt(with_mask, type(false, false, "NEU"));
    EXPECT_EQ(with_mask.value("Emsk_Dsn"), Variant("NEU"));

    RecordSet without_mask = open_activity();
    activities.AKT_SetAktArt(without_mask, type(false, false, "NEU"));
    EXPECT_EQ(without_mask.value("Emsk_Dsn"), Variant(Null{}));

    RecordSet kept = open_activity("ALT");
    activities.AKT_SetAktArt(kept, type(false, false, ""));
    EXPECT_EQ(kept.value("Emsk_Dsn"), Variant("ALT"));
}

TEST_F(ActivitiesTest, TypeIsFoundByKeyInItsOwnTable) {
    // Nothing is found: the error is the record set's when the first field is read.
    expect_error_number(3021, [&] { activities.AKT_SetAktArtByDsn("K1", "A1"); });
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM AKT  WHERE Dsn = 'K1'",
                                 "SELECT * FROM Aktivitätenarten  WHERE Dsn = 'A1'"}));
}

TEST_F(ActivitiesTest, MissingTypeIsTheRecordSetsErrorAndNothingIsSaved) {
    host.answer("SELECT * FROM AKT  WHERE Dsn = 'K1'",
                row({{"DSN", "K1"}, {"Erledigt", std::int16_t{0}}}));
    expect_error_number(3021, [&] { activities.AKT_SetAktArtByDsn("K1", "A1"); });
    EXPECT_FALSE(anything_saved());
}

}  // namespace
}  // namespace cvdeveloper
