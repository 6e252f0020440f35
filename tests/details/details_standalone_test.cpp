// Detail values and catalogues against the stand-alone host.
#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/repeated.h"
#include "support/standalone_application.h"

namespace cvdeveloper {
namespace {

class DetailsStandaloneTest : public StandaloneApplicationTest {
  protected:
    std::string add_activity() {
        RecordSet rs = app->AKT_Find("1=2");
        std::string key = new_key();
        rs.add_new();
        rs.set("DSN", key);
        app->AKT_Update(rs);
        return key;
    }
    std::int32_t values_of(const std::string& key) {
        return count("SELECT DSN FROM AKTDET WHERE AKT_DSN='" + key + "'");
    }

    Ref<clsBase> base = app->oBase();
};

TEST_F(DetailsStandaloneTest, ASecondValueChangesTheRowOfTheFirst) {
    const std::string key = add_activity();
    EXPECT_TRUE(base->Det_SetValue("Akt", key, "F", "eins"));
    EXPECT_TRUE(base->Det_SetValue("Akt", key, "F", "zwei"));
    EXPECT_EQ(values_of(key), 1);
    EXPECT_EQ(base->Det_GetValue("AKT", key, "F"), "zwei");
}

TEST_F(DetailsStandaloneTest, AValueIsKeptWithItsFirstHundredCharacters) {
    const std::string key = add_activity();
    base->Det_SetValue("AKT", key, "F", repeated("ü", 150));
    EXPECT_EQ(base->Det_GetValue("AKT", key, "F"), repeated("ü", 100));
    base->Det_SetValue("AKT", key, "F", repeated("🏠", 50));
    EXPECT_EQ(base->Det_GetValue("AKT", key, "F"), repeated("🏠", 50));
    base->Det_SetValue("AKT", key, "F", "x" + repeated("🏠", 50));
    EXPECT_EQ(base->Det_GetValue("AKT", key, "F"), "x" + repeated("🏠", 49));
}

TEST_F(DetailsStandaloneTest, AclAndLinkStayUnlessTheyAreGiven) {
    const std::string key = add_activity();
    const auto field = [&](const std::string& name) {
        return single("SELECT " + name + " FROM AKTDET WHERE AKT_DSN='" + key + "'");
    };
    base->Det_SetValue("AKT", key, "F", "x", "Alle:L", "L1");
    base->Det_SetValue("AKT", key, "F", "y");
    EXPECT_EQ(field("ACL"), Variant("Alle:L"));
    EXPECT_EQ(field("Link_DSN"), Variant("L1"));
    base->Det_SetValue("AKT", key, "F", "z", "", "");
    EXPECT_EQ(field("ACL"), Variant(""));
    EXPECT_EQ(field("Link_DSN"), Variant(Null{}));
}

TEST_F(DetailsStandaloneTest, AnOptionClearsTextAndBounds) {
    const std::string key = add_activity();
    base->Det_SetValue("AKT", key, "F", "120");
    RecordSet rs = select("SELECT * FROM AKTDET WHERE AKT_DSN='" + key + "'");
    rs.set("Von_Num", 120.0);
    rs.set("Bis_Num", 130.5);
    rs.set("von_str", "a");
    base->CV_UpdateRecordset(rs);
    Variant from;
    Variant to;
    EXPECT_TRUE(base->Det_GetNumValue("AKT", key, "F", from, to));
    EXPECT_EQ(to_double(from), 120.0);
    EXPECT_EQ(to_double(to), 130.5);

    EXPECT_FALSE(base->Det_SetOptionDsn("AKT", key, "F", ""));
    EXPECT_EQ(base->Det_GetValue("AKT", key, "F"), "120");
    EXPECT_TRUE(base->Det_SetOptionDsn("AKT", key, "F", "P"));
    EXPECT_EQ(base->Det_GetOptionDsn("AKT", key, "F"), "P");
    EXPECT_EQ(base->Det_GetValue("AKT", key, "F"), "");
    EXPECT_TRUE(base->Det_GetNumValue("AKT", key, "F", from, to));
    EXPECT_EQ(to_double(from), 0.0);
    EXPECT_EQ(to_double(to), 0.0);
    EXPECT_EQ(single("SELECT von_str FROM AKTDET WHERE AKT_DSN='" + key + "'"), Variant(Null{}));
}

TEST_F(DetailsStandaloneTest, DeleteRemovesEveryRowOfTheFieldKind) {
    const std::string key = add_activity();
    RecordSet rs = select("SELECT * FROM AKTDET WHERE 1=2");
    for (const std::string_view value : {"a", "b", "c"}) {
        rs.add_new();
        rs.set("DSN", new_key());
        rs.set("AKT_DSN", key);
        rs.set("FldArt_DSN", value == "c" ? "G" : "F");
        rs.set("Eingabe", value);
    }
    base->CV_UpdateRecordset(rs);
    EXPECT_TRUE(base->Det_Delete("AKT", key, "F"));
    EXPECT_FALSE(base->Det_Delete("AKT", key, "F"));
    EXPECT_EQ(values_of(key), 1);
}

TEST_F(DetailsStandaloneTest, CopyingActivitiesDoublesTheirValuesUnderNewKeys) {
    const std::string source = add_activity();
    const std::string copy = add_activity();
    for (const std::string_view field_kind : {"F", "G", "H"}) {
        base->Det_SetValue("AKT", source, field_kind, field_kind, "acl", "L");
    }
    EXPECT_EQ(base->Det_Copy("AKT", source, copy), 3);
    EXPECT_EQ(base->Det_GetValue("AKT", copy, "G"), "G");
    EXPECT_EQ(base->Det_Copy("AKT", source, copy), 3);
    EXPECT_EQ(values_of(copy), 6);
    EXPECT_EQ(values_of(source), 3);
    EXPECT_EQ(base->Det_Copy("AKT", "", copy), 0);
    EXPECT_EQ(app->AKT_Detail_Copy(new_key(), copy), 0);
}

TEST_F(DetailsStandaloneTest, CopyingValuesOfOtherRecordsFailsForWantOfAnActivitysColumn) {
    RecordSet rs = app->OBJ_Find("1=2");
    rs.add_new();
    rs.set("DSN", "O1");
    app->OBJ_Update(rs);
    app->OBJ_Detail_Set("O1", "F", "x");
    try {
        base->Det_Copy("OBJ", "O1", "O2");
        FAIL() << "the column was taken";
    } catch (const AutomationError& error) {
        EXPECT_NE(error.description().find("Akt_Dsn"), std::string::npos) << error.what();
    }
    EXPECT_EQ(count("SELECT DSN FROM OBJDET"), 1);
}

TEST_F(DetailsStandaloneTest, AnEntryMaskGivesValuesTheirAcl) {
    const std::string key = add_activity();
    const std::string mask = app->EMSK_Create("Maske", EART_MIETE, "", "AKT");
    EXPECT_TRUE(app->EMSK_AddFldArt(mask, "F", true, 255, "Alle:L", "17"));
    EXPECT_FALSE(app->EMSK_AddFldArt(mask, "F"));
    EXPECT_EQ(count("SELECT DSN FROM EmskDet"), 1);
    EXPECT_TRUE(base->Det_SetValueWithEMSK("AKT", key, "F", "x", mask));
    EXPECT_EQ(single("SELECT ACL FROM AKTDET"), Variant("Alle:L"));
    EXPECT_TRUE(base->Det_SetValueWithEMSK("AKT", key, "F", "y"));
    EXPECT_EQ(single("SELECT ACL FROM AKTDET"), Variant("Alle:L"));
    EXPECT_TRUE(base->Det_SetValueWithEMSK("AKT", key, "F", "z", new_key()));
    EXPECT_EQ(single("SELECT ACL FROM AKTDET"), Variant(""));
}

TEST_F(DetailsStandaloneTest, AnEntryMaskKnowsItsFieldKinds) {
    const std::string mask = app->EMSK_Create(repeated("n", 60));
    EXPECT_EQ(app->EMSK_NameByDSN(mask), repeated("n", 50));
    EXPECT_EQ(app->EMSK_GetFldArtDsnList(mask), "");
    app->EMSK_AddFldArt(mask, "F1", true, 255, "acl", "17");
    app->EMSK_AddFldArt(mask, "F2");
    const std::string list = app->EMSK_GetFldArtDsnList(mask);
    EXPECT_TRUE(list == "F1,F2" || list == "F2,F1") << list;
    EXPECT_TRUE(app->EMSK_GetMandatory(mask, "F1"));
    EXPECT_EQ(app->EMSK_GetBackcolor(mask, "F1"), 255);
    EXPECT_EQ(app->EMSK_GetFldArtOpFilter(mask, "F1"), 17);
    EXPECT_EQ(app->EMSK_GetFldArtOpFilter(mask, "F3"), 0);
    EXPECT_EQ(app->EMSK_GetField(mask, "F3", "Backcolor"), Variant(Null{}));
    EXPECT_TRUE(app->EMSK_ContainsFldArt(mask, "F2"));
    EXPECT_TRUE(app->EMSK_DelFldArt(mask, "F2"));
    EXPECT_FALSE(app->EMSK_DelFldArt(mask, "F2"));
    EXPECT_FALSE(app->EMSK_ContainsFldArt(mask, "F2"));
    EXPECT_THROW(app->EMSK_GetField(mask, "F1", "Gibtsnicht"), AutomationError);
}

TEST_F(DetailsStandaloneTest, CatalogueEntriesAreOfferedToTheTablesNamed) {
    const std::string field_kind = app->FldArt_Create(repeated("k", 30), FLDARTTYP_DATUM, "", "",
                                                      "", "", " AKT , Obj,VERTRÄGE");
    const RecordSet kind = app->FldArt_FindByDSN(field_kind);
    EXPECT_EQ(kind.value("Kürzel"), Variant(repeated("k", 25)));
    EXPECT_EQ(to_int32(kind.value("akt")), 1);
    EXPECT_EQ(to_int32(kind.value("obj")), 1);
    EXPECT_EQ(to_int32(kind.value("verträge")), 1);
    EXPECT_EQ(to_int32(kind.value("ad")), 0);
    EXPECT_EQ(to_int32(kind.value("Aktiv")), 1);
    EXPECT_EQ(app->FldArt_GetTyp(kind), FLDARTTYP_DATUM);

    const RecordSet feature =
        app->MKM_FindByDSN(app->MKM_Create(repeated("m", 25), "", "", "akt,obj"));
    EXPECT_EQ(feature.value("Merkmal"), Variant(repeated("m", 20)));
    EXPECT_EQ(to_int32(feature.value("BackColor")), 16777215);
    EXPECT_EQ(to_int32(feature.value("FontColor")), 0);
    EXPECT_EQ(to_int32(feature.value("obj")), 1);
}

TEST_F(DetailsStandaloneTest, ATableThatIsNoColumnIsTheRecordSetsErrorAndNothingIsWritten) {
    const auto expect_error_naming = [](std::string_view table, auto create) {
        try {
            create();
            ADD_FAILURE() << "the item was taken";
        } catch (const AutomationError& error) {
            EXPECT_NE(error.description().find(table), std::string::npos) << error.what();
            EXPECT_NE(error.description().find("gibtsnicht"), std::string::npos) << error.what();
        }
    };
    expect_error_naming("FldArt", [&] {
        app->FldArt_Create("x", FLDARTTYP_TEXT, "", "", "", "", "akt,GibtsNicht");
    });
    expect_error_naming("EMSK", [&] { app->EMSK_Create("x", EART_KAUF, "", "GibtsNicht"); });
    expect_error_naming("Mkm", [&] { app->MKM_Create("x", "", "", "obj,GibtsNicht"); });
    EXPECT_EQ(app->FldArt_FindDsnByName("x"), "");
    EXPECT_EQ(app->EMSK_FindDsnByName("x"), "");
    EXPECT_EQ(app->MKM_FindDsnByName("x"), "");
}

TEST_F(DetailsStandaloneTest, AnOptionWithoutAFieldKindIsNotMade) {
    const std::int32_t before = count("SELECT DSN FROM FldArtOp");
    expect_error(601, "FldArtOp_Create", "FldArt_Dsn ist ein Pflichtfeld",
                 [&] { app->FldArtOp_Create("Gas", ""); });
    EXPECT_EQ(count("SELECT DSN FROM FldArtOp"), before);
}

class SampleOfficeTest : public StandaloneApplicationTest {
  protected:
    SampleOfficeTest() : StandaloneApplicationTest(true) {}
};

TEST_F(SampleOfficeTest, ACrossTableRunsAndShowsDetailValuesBesideTheObjects) {
    const RecordSet rs = select(app->oBase()->Sql_CrossTable(
        "OBJ", "Kennung", "Zimmer|Zimmer.Von_Num|Wohnfläche",
        "OBJ.DSN = '0B000000-0000-4000-8000-000000000001'", "t1.Kennung"));
    ASSERT_FALSE(rs.at_end());
    EXPECT_EQ(to_text(rs.value("Zimmer")), "5");
    EXPECT_EQ(to_double(rs.value("Zimmer_Von_Num")), 5.0);
    EXPECT_EQ(to_text(rs.value("Wohnfläche")), "148,5");
    rs.move_next();
    EXPECT_TRUE(rs.at_end());
}

}  // namespace
}  // namespace cvdeveloper
