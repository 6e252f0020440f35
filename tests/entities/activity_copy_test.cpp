#include "cvdeveloper/entities/activity_copy.h"

#include <algorithm>

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

constexpr Date monday{40'553};     // 2011-01-10
constexpr Date wednesday{40'555};  // 2011-01-12
constexpr Date friday{40'557};     // 2011-01-14
constexpr Date tuesday{40'561};    // 2011-01-18

constexpr char no_details[] =
    "SELECT AKTDet.* FROM AKT INNER JOIN AKTDet ON AKT.Dsn = AKTDet.AKT_Dsn WHERE 1=2";

class ActivityCopyTest : public RecordTest {
  protected:
    ActivityCopyTest() { answer_std("Kennung_AKT", "T-9"); }

    // One activity a row: key, key of its parent.
    [[nodiscard]] RecordSet activities(
        const std::vector<std::pair<std::string, Variant>>& keys) const {
        Rows rows{.columns = {"Dsn", "Kennung", "Stamp", "Akt_Dsn"}, .rows = {}};
        for (const auto& [key, parent] : keys) {
            rows.rows.push_back({key, "T-1", std::int32_t{5}, parent});
        }
        return host.record_set(rows);
    }
    [[nodiscard]] RecordSet dated_activity() const {
        return host.record_set(row({{"Dsn", "A"},
                                    {"Datum", wednesday},
                                    {"Datum_Bis", wednesday},
                                    {"Vorlage", monday},
                                    {"Alarm", Null{}},
                                    {"Akt_Dsn", Null{}}}));
    }
    static Lines hanging_on(const std::string& key) {
        return {"SELECT * FROM AKTMkm WHERE Link_dsn='" + key + "'", "GetBlobInfos " + key,
                "SELECT AKTDet.* FROM AKT INNER JOIN AKTDet ON AKT.Dsn = AKTDet.AKT_Dsn WHERE "
                "AKTDet.AKT_dsn='" +
                    key + "'",
                no_details};
    }

    ActivityCopy copier{session};
};

TEST_F(ActivityCopyTest, NothingToCopyGivesAnEmptyRecordSet) {
    EXPECT_TRUE(copier.AKT_Copy(activities({})).at_end());
    EXPECT_EQ(host.log(), Lines{"SELECT * FROM Akt WHERE 1=2"});
}

TEST_F(ActivityCopyTest, CopyGetsKeysThenColumnsThenWhatHangsOnTheOriginalAndIsNotSaved) {
    const RecordSet copies = copier.AKT_Copy(activities({{"A", Null{}}}));
    EXPECT_EQ(host.log(),
              together({{"SELECT * FROM Akt WHERE 1=2", "AddNew", "DSN = 'GUID-1'",
                         "SELECT Kennung_AKT FROM Std", "Kennung = 'T-9'", "Akt_Dsn = Null"},
                        hanging_on("A")}));
    EXPECT_EQ(copies.value("Dsn"), Variant("GUID-1"));
    EXPECT_EQ(copies.value("Kennung"), Variant("T-9"));
    expect_error_number(3265, [&] { static_cast<void>(copies.value("Stamp")); });
}

TEST_F(ActivityCopyTest, FeaturesAttachmentsAndDetailsAreWrittenForTheNewKey) {
    host.answer("SELECT * FROM AKTMkm WHERE Link_dsn='A'", row({{"Mkm_Dsn", "M1"}}));
    host.answer_blobs("A", row({{"Dsn", "B1"},
                                {"lngTyp", std::int32_t{7}},
                                {"strsourcefilename", "a.pdf"},
                                {"mail_attachment", Null{}}}));
    host.answer(hanging_on("A")[2], row({{"DSN", "D1"}, {"AKT_Dsn", "A"}, {"Eingabe", "3"}}));
    copier.AKT_Copy(activities({{"A", Null{}}}));
    const Lines log = host.log();
    ASSERT_GT(log.size(), 6U);
    EXPECT_EQ(Lines(log.begin() + 6, log.end()),
              (Lines{"SELECT * FROM AKTMkm WHERE Link_dsn='A'",
                     "SELECT * FROM AKTMKM WHERE (link_dsn='GUID-1') AND (mkm_dsn='M1')", "AddNew",
                     "DSN = 'GUID-2'", "Link_DSN = 'GUID-1'", "MKM_DSN = 'M1'", "Update",
                     "GetBlobInfos A", "SaveBlobFile a.pdf, GUID-1, 7", hanging_on("A")[2],
                     no_details, "AddNew", "Dsn = 'GUID-3'", "AKT_Dsn = 'A'", "Eingabe = '3'",
                     "Akt_Dsn = 'GUID-1'", "Update"}));
}

TEST_F(ActivityCopyTest, ParentsAmongTheCopiesAreTheCopiesAndOthersStay) {
    const RecordSet source =
        activities({{"KEY-01", Null{}}, {"KEY-02", "KEY-01"}, {"KEY-03", "KEY-99"}});
    const RecordSet copies = copier.AKT_Copy(source);
    EXPECT_TRUE(source.at_end());
    EXPECT_EQ(copies.value("Dsn"), Variant("GUID-1"));
    EXPECT_EQ(copies.value("Akt_Dsn"), Variant(Null{}));
    copies.move_next();
    EXPECT_EQ(copies.value("Akt_Dsn"), Variant("GUID-1"));
    copies.move_next();
    EXPECT_EQ(copies.value("Akt_Dsn"), Variant("KEY-99"));
}

TEST_F(ActivityCopyTest, ParentMayStandBehindItsChild) {
    const RecordSet copies = copier.AKT_Copy(activities({{"KEY-02", "KEY-01"}, {"KEY-01", ""}}));
    EXPECT_EQ(copies.value("Akt_Dsn"), Variant("GUID-2"));
}

TEST_F(ActivityCopyTest, CopyingBeginsAtTheCurrentRow) {
    const RecordSet source = activities({{"KEY-01", Null{}}, {"KEY-02", "KEY-01"}});
    source.move_next();
    const RecordSet copies = copier.AKT_Copy(source);
    EXPECT_EQ(copies.value("Akt_Dsn"), Variant("KEY-01"));
    copies.move_next();
    EXPECT_TRUE(copies.at_end());
}

TEST_F(ActivityCopyTest, ProjectAndUserAreWrittenWhereGiven) {
    copier.AKT_Copy(activities({{"A", Null{}}}), "USER", "PRO");
    Lines written;
    for (const std::string& line : host.log()) {
        for (const std::string_view column :
             {"Projekte_Dsn", "NEU_BEN_DSN", "ANGELEGT", "ÄN_BEN_DSN", "TOUCH"}) {
            if (line.starts_with(column)) {
                written.push_back(line.starts_with("ANGELEGT") || line.starts_with("TOUCH")
                                      ? std::string(column)
                                      : line);
            }
        }
    }
    EXPECT_EQ(written, (Lines{"Projekte_Dsn = 'PRO'", "NEU_BEN_DSN = 'USER'", "ANGELEGT",
                              "ÄN_BEN_DSN = 'USER'", "TOUCH"}));
}

TEST_F(ActivityCopyTest, DatesMoveInWorkingDaysWhereBothDatesAreGiven) {
    const RecordSet copies = copier.AKT_Copy(dated_activity(), "", "", friday, monday);
    EXPECT_EQ(copies.value("Datum"), Variant(tuesday));
    EXPECT_EQ(copies.value("Datum_Bis"), Variant(tuesday));
    EXPECT_EQ(copies.value("Vorlage"), Variant(friday));
    EXPECT_EQ(copies.value("Alarm"), Variant(Null{}));
    const Lines log = host.log();
    ASSERT_GT(log.size(), 14U);
    EXPECT_EQ(Lines(log.begin() + 10, log.begin() + 14),
              (Lines{"Datum_Bis = #18.01.2011#", "Vorlage = #14.01.2011#", "Alarm = Null",
                     "Datum = #18.01.2011#"}));
}

TEST_F(ActivityCopyTest, WeekendsCountWhereAskedFor) {
    const RecordSet copies = copier.AKT_Copy(dated_activity(), "", "", friday, monday, false);
    EXPECT_EQ(copies.value("Datum"), Variant(Date{friday.days + 2}));
}

TEST_F(ActivityCopyTest, DatesStayWhereOneOfTheTwoIsMissing) {
    EXPECT_EQ(copier.AKT_Copy(dated_activity(), "", "", friday).value("Datum"), Variant(wednesday));
    EXPECT_EQ(copier.AKT_Copy(dated_activity(), "", "", {}, monday).value("Datum"),
              Variant(wednesday));
}

TEST_F(ActivityCopyTest, KeysOfDifferentLengthsDoNoHarm) {
    const RecordSet copies = copier.AKT_Copy(
        activities({{"A-VERY-LONG-KEY-OF-ANOTHER-HOST-1", Null{}},
                    {"A-VERY-LONG-KEY-OF-ANOTHER-HOST-2", "A-VERY-LONG-KEY-OF-ANOTHER-HOST-2"}}));
    copies.move_next();
    EXPECT_EQ(copies.value("Akt_Dsn"), Variant("A-VERY-LONG-KEY-OF-ANOTHER-HOST-2"));
}

// What was written down, with the present moment taken out.
Lines without_moments(Lines lines) {
    for (std::string& line : lines) {
        for (const std::string_view column : {"ANGELEGT", "TOUCH"}) {
            if (line.starts_with(std::string(column) + " = #")) {
                line = std::string(column) + " = now";
            }
        }
    }
    return lines;
}

TEST_F(ActivityCopyTest, EverythingIsWrittenInOneFixedOrderForEachActivity) {
    const RecordSet source =
        host.record_set({.columns = {"Dsn", "Kennung", "Stamp", "Akt_Dsn", "Projekte_Dsn", "Datum",
                                     "Datum_Bis", "Vorlage", "Alarm", "NEU_BEN_DSN"},
                         .rows = {{"KEY-01", "T-1", std::int32_t{5}, Null{}, "OLD", wednesday,
                                   Null{}, monday, Null{}, "OTHER"},
                                  {"KEY-02", "T-2", std::int32_t{6}, "KEY-01", "OLD", Null{},
                                   Null{}, Null{}, Null{}, "OTHER"}}});
    copier.AKT_Copy(source, "USER", "PRO", friday, monday);
    const Lines user{"NEU_BEN_DSN = 'USER'", "ANGELEGT = now", "ÄN_BEN_DSN = 'USER'",
                     "TOUCH = now"};
    EXPECT_EQ(without_moments(host.log()),
              together({{"SELECT * FROM Akt WHERE 1=2", "AddNew", "DSN = 'GUID-1'",
                         "SELECT Kennung_AKT FROM Std", "Kennung = 'T-9'", "Akt_Dsn = Null",
                         "Projekte_Dsn = 'OLD'", "Datum = #12.01.2011#", "Datum_Bis = Null",
                         "Vorlage = #10.01.2011#", "Alarm = Null", "NEU_BEN_DSN = 'OTHER'",
                         "Projekte_Dsn = 'PRO'", "Datum_Bis = Null", "Vorlage = #14.01.2011#",
                         "Alarm = Null", "Datum = #18.01.2011#"},
                        user,
                        hanging_on("KEY-01"),
                        {"AddNew", "DSN = 'GUID-2'", "SELECT Kennung_AKT FROM Std",
                         "Kennung = 'T-9'", "Akt_Dsn = 'KEY-01'", "Projekte_Dsn = 'OLD'",
                         "Datum = Null", "Datum_Bis = Null", "Vorlage = Null", "Alarm = Null",
                         "NEU_BEN_DSN = 'OTHER'", "Projekte_Dsn = 'PRO'", "Datum_Bis = Null",
                         "Vorlage = Null", "Alarm = Null", "Datum = Null"},
                        user,
                        hanging_on("KEY-02"),
                        {"Akt_Dsn = 'GUID-1'"}}));
}

TEST_F(ActivityCopyTest, WithoutAUserCreatorAndMomentAreThoseOfTheSource) {
    const RecordSet copies = copier.AKT_Copy(host.record_set(row({{"Dsn", "A"},
                                                                  {"Akt_Dsn", Null{}},
                                                                  {"NEU_BEN_DSN", "OTHER"},
                                                                  {"ANGELEGT", monday},
                                                                  {"ÄN_BEN_DSN", "THIRD"},
                                                                  {"TOUCH", friday}})));
    EXPECT_EQ(copies.value("NEU_BEN_DSN"), Variant("OTHER"));
    EXPECT_EQ(copies.value("ANGELEGT"), Variant(monday));
    EXPECT_EQ(copies.value("ÄN_BEN_DSN"), Variant("THIRD"));
    EXPECT_EQ(copies.value("TOUCH"), Variant(friday));
}

TEST_F(ActivityCopyTest, FailureOfTheSecondActivityLeavesWhatHangsOnTheFirst) {
    host.answer("SELECT * FROM AKTMkm WHERE Link_dsn='KEY-01'", row({{"Mkm_Dsn", "M1"}}));
    host.refuse("SELECT * FROM AKTMkm WHERE Link_dsn='KEY-02'", {4711, "HOST", "no"});
    const RecordSet source = activities({{"KEY-01", Null{}}, {"KEY-02", Null{}}});
    expect_error(4711, "HOST", "no", [&] { return copier.AKT_Copy(source); });
    const Lines log = host.log();
    EXPECT_EQ(std::count(log.begin(), log.end(), "Update"), 1);
    EXPECT_EQ(log.back(), "SELECT * FROM AKTMkm WHERE Link_dsn='KEY-02'");
    EXPECT_EQ(source.value("Dsn"), Variant("KEY-02"));
}

TEST_F(ActivityCopyTest, FlagsAndDatesAreOnlyRead) {
    Variant values[] = {activities({}), "", "", friday, monday, true, false};
    app->invoke("AKT_Copy", InvokeKind::Method, {.values = values, .by_reference = 0x7F});
    EXPECT_EQ(values[3], Variant(friday));
    EXPECT_EQ(values[4], Variant(monday));
    EXPECT_EQ(values[5], Variant(true));
    EXPECT_EQ(values[6], Variant(false));
}

TEST_F(ActivityCopyTest, CopyingIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { copier.AKT_Copy(activities({{"A", Null{}}})); });
}

}  // namespace
}  // namespace cvdeveloper
