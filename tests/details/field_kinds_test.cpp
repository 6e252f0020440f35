#include "cvdeveloper/details/field_kinds.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_host.h"
#include "support/repeated.h"

namespace cvdeveloper {
namespace {

class FieldKindsTest : public testing::Test {
  protected:
    RecordingHost host;
    Ref<Application> app = host.attached();
};

TEST_F(FieldKindsTest, NewMakesAnActiveRowAndDoesNotSaveIt) {
    const RecordSet rs = app->FldArt_New();
    EXPECT_EQ(rs.value("Aktiv"), Variant(std::int16_t{1}));
    EXPECT_EQ(host.log(),
              (Lines{"SELECT * FROM FldArt  WHERE 1=2", "AddNew", "DSN = 'GUID-1'", "Aktiv = 1"}));
}

TEST_F(FieldKindsTest, CreateWithoutArgumentsMakesAnActiveTextField) {
    EXPECT_EQ(app->FldArt_Create(), "GUID-1");
    EXPECT_EQ(host.log(),
              (Lines{"SELECT * FROM FldArt  WHERE 1=2", "AddNew", "DSN = 'GUID-1'", "Aktiv = 1",
                     "Kürzel = ''", "Typ = 3", "Sortierung = ''", "Plausibilität = ''",
                     "Format = ''", "Notiz = ''", "Intern = ''", "Gruppen = ''", "Update"}));
}

TEST_F(FieldKindsTest, CreateFillsTheColumnsInTheirOrder) {
    app->FldArt_Create("Zimmer", FLDARTTYP_NUMMERISCH, "010", ">0", "0.0", "Notiz", "obj", "intern",
                       "g1");
    const Lines log = host.log();
    EXPECT_EQ(Lines(log.begin() + 4, log.end()),
              (Lines{"Kürzel = 'Zimmer'", "Typ = 2", "Sortierung = '010'", "Plausibilität = '>0'",
                     "Format = '0.0'", "Notiz = 'Notiz'", "Intern = 'intern'", "Gruppen = 'g1'",
                     "obj = 1", "Update"}));
}

TEST_F(FieldKindsTest, CreateOffersTheFieldKindToTheTablesNamedWhateverTheirCase) {
    app->FldArt_Create("x", FLDARTTYP_TEXT, "", "", "", "", " AKT , Obj,VERTRÄGE");
    const Lines log = host.log();
    EXPECT_EQ(Lines(log.end() - 4, log.end()),
              (Lines{"akt = 1", "obj = 1", "verträge = 1", "Update"}));
}

TEST_F(FieldKindsTest, CreateCutsTextsToTheirColumns) {
    const auto column = [&](const std::string& name) {
        const std::string start = name + " = ";
        for (const std::string& line : host.log()) {
            if (line.starts_with(start)) {
                return line.substr(start.size());
            }
        }
        return std::string();
    };
    const auto quoted = [](const std::string& text) { return "'" + text + "'"; };
    const auto create = [&](std::size_t more) {
        host.clear_log();
        app->FldArt_Create(repeated("k", 25 + more), FLDARTTYP_TEXT, repeated("s", 10 + more),
                           repeated("p", 40 + more), repeated("f", 50 + more),
                           repeated("n", 5000 + more), "", repeated("i", 254 + more),
                           repeated("g", 1000 + more));
    };
    for (const std::size_t more : {0U, 1U}) {
        create(more);
        EXPECT_EQ(column("Kürzel"), quoted(repeated("k", 25)));
        EXPECT_EQ(column("Sortierung"), quoted(repeated("s", 10)));
        EXPECT_EQ(column("Plausibilität"), quoted(repeated("p", 40)));
        EXPECT_EQ(column("Format"), quoted(repeated("f", 50)));
        EXPECT_EQ(column("Notiz"), quoted(repeated("n", 5000 + more)));
        EXPECT_EQ(column("Intern"), quoted(repeated("i", 254)));
        EXPECT_EQ(column("Gruppen"), quoted(repeated("g", 1000)));
    }
    host.clear_log();
    app->FldArt_Create(repeated("ü", 24) + "🏠");
    EXPECT_EQ(column("Kürzel"), quoted(repeated("ü", 24)));
    host.clear_log();
    app->FldArt_Create(repeated("ü", 23) + "🏠");
    EXPECT_EQ(column("Kürzel"), quoted(repeated("ü", 23) + "🏠"));
}

TEST_F(FieldKindsTest, TheTypeIsStoredAsTheEnumerationsNumber) {
    const RecordSet rs = host.record_set(row({{"DSN", "F"}, {"Typ", 3}}));
    app->FldArt_SetTyp(rs, FLDARTTYP_DATUM);
    EXPECT_EQ(app->FldArt_GetTyp(rs), FLDARTTYP_DATUM);
    EXPECT_EQ(rs.value("Typ"), Variant(5));
    EXPECT_EQ(host.log(), Lines{"Typ = 5"});
}

TEST_F(FieldKindsTest, TheTypeIsReadWhateverNumberTypeTheColumnHas) {
    EXPECT_EQ(app->FldArt_GetTyp(host.record_set(row({{"Typ", std::int16_t{7}}}))),
              FLDARTTYP_ADRESSE);
    EXPECT_EQ(app->FldArt_GetTyp(host.record_set(row({{"Typ", 0.0}}))), FLDARTTYP_OPTION);
}

TEST(FieldKindsWithoutASession, RaiseError601) {
    const auto app = make_object<Application>();
    expect_error(601, "", "CVDeveloper wurde nicht initialisiert", [&] { app->FldArt_New(); });
    expect_error(601, "", "CVDeveloper wurde nicht initialisiert", [&] { app->FldArt_Create(); });
}

}  // namespace
}  // namespace cvdeveloper
