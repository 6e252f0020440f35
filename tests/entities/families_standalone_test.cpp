// Every family against the stand-alone host: statements as they are spelled, both spellings of a
// table included.
#include <gtest/gtest.h>

#include "cvdeveloper/entities/families.h"
#include "support/expect_error.h"
#include "support/standalone_application.h"

namespace cvdeveloper {
namespace {

struct RecordFamily {
    std::string prefix;
    std::string detail;  // how its detail operations start; "" where it has none
    std::string detail_delete;
};

class RecordFamilyTest : public StandaloneApplicationTest,
                         public testing::WithParamInterface<RecordFamily> {
  protected:
    std::string operation(const std::string& kind) const { return GetParam().prefix + "_" + kind; }
    RecordSet record_set(const Variant& value) { return RecordSet(to_object(value)); }

    std::string add(const std::string& code) {
        const RecordSet rs = record_set(call(operation("Find"), "1=2"));
        std::string key = new_key();
        rs.add_new();
        rs.set("DSN", key);
        rs.set("Kennung", code);
        call(operation("Update"), Variant(rs));
        return key;
    }
};

TEST_P(RecordFamilyTest, RecordsAreFoundByConditionKeyAndHumanKey) {
    const std::string key = add("T-1");
    EXPECT_EQ(call(operation("FindDSN"), "Kennung = 'T-1'"), Variant(key));
    EXPECT_EQ(record_set(call(operation("FindByDSN"), key)).value("Kennung"), Variant("T-1"));
    EXPECT_EQ(record_set(call(operation("FindByKennung"), "T-1")).value("DSN"), Variant(key));
    EXPECT_EQ(call(operation("FindDsnByKennung"), "T-1"), Variant(key));
    EXPECT_EQ(call(operation("FindDsnByKennung"), "T-2"), Variant(""));
    EXPECT_TRUE(record_set(call(operation("FindByDSN"), new_key())).at_end());
}

TEST_P(RecordFamilyTest, RecordsAreDeletedByKeyAndByRecordSet) {
    const std::string key = add("T-1");
    add("T-2");
    EXPECT_EQ(call(operation("DeleteByDsn"), key), Variant(true));
    EXPECT_EQ(call(operation("DeleteByDsn"), key), Variant(false));
    const RecordSet rs = record_set(call(operation("FindByKennung"), "T-2"));
    EXPECT_EQ(call(operation("Delete"), Variant(rs)), Variant(true));
    EXPECT_EQ(call(operation("FindDsnByKennung"), "T-2"), Variant(""));
}

TEST_P(RecordFamilyTest, RecordsTakeAndLoseFeatures) {
    const std::string key = add("T-1");
    const std::string a = new_key();
    const std::string b = new_key();
    call(operation("Merkmal_Add"), key, a + ",," + a);
    EXPECT_EQ(call(operation("Merkmal_Contains"), key, a), Variant(true));
    EXPECT_EQ(call(operation("Merkmal_Contains"), key, b), Variant(false));
    call(operation("Merkmal_Switch"), key, a, b);
    EXPECT_EQ(call(operation("Merkmal_Contains"), key, a), Variant(false));
    EXPECT_EQ(call(operation("Merkmal_Contains"), key, b), Variant(true));
    call(operation("Merkmal_Del"), key, a + "," + b);
    EXPECT_EQ(call(operation("Merkmal_Contains"), key, b), Variant(false));
}

TEST_P(RecordFamilyTest, RecordsTakeAndLoseDetailValues) {
    if (GetParam().detail.empty()) {
        EXPECT_FALSE(app->table().has_member(operation("Detail_Get")));
        return;
    }
    const std::string key = add("T-1");
    const std::string field_kind = new_key();
    const std::string option = new_key();
    const std::string detail = GetParam().detail;
    call(detail + "Set", key, field_kind, "120 qm");
    call(detail + "Set", key, field_kind, "130 qm", "acl", new_key());
    EXPECT_EQ(call(detail + "Get", key, field_kind), Variant("130 qm"));
    EXPECT_EQ(call(detail + "GetOptionDsn", key, field_kind), Variant(""));
    call(detail + "SetOptionDsn", key, field_kind, option);
    EXPECT_EQ(call(detail + "Get", key, field_kind), Variant(""));
    EXPECT_EQ(call(detail + "GetOptionDsn", key, field_kind), Variant(option));
    call(GetParam().detail_delete, key, field_kind);
    EXPECT_EQ(call(detail + "GetOptionDsn", key, field_kind), Variant(""));
}

TEST_P(RecordFamilyTest, DetailValuesOfADeletedRecordAreInvisible) {
    if (GetParam().detail.empty()) {
        return;
    }
    const std::string key = add("T-1");
    const std::string field_kind = new_key();
    call(GetParam().detail + "Set", key, field_kind, "120 qm");
    call(operation("DeleteByDsn"), key);
    EXPECT_EQ(call(GetParam().detail + "Get", key, field_kind), Variant(""));
}

INSTANTIATE_TEST_SUITE_P(
    All, RecordFamilyTest,
    testing::Values(RecordFamily{"AKT", "AKT_Detail_", "AKT_Detail_Delete"},
                    RecordFamily{"OBJ", "OBJ_Detail_", "OBJ_Detail_Delete"},
                    RecordFamily{"PROJEKTE", "PROJEKTE_Detail_", "PROJEKTE_Detail_Delete"},
                    RecordFamily{"ANF", "ANF_Detail_", "ANF_Detail_Delete"},
                    RecordFamily{"AKTEN", "AKTEN_Detail_", "AKTEN_Detail_Delete"},
                    RecordFamily{"VERTRAEGE", "VERTRAEGE_Detail_", "VERTRAEGE_Detail_Delete"},
                    RecordFamily{"AD", "", ""}, RecordFamily{"Details", "Details_", "Details_Del"}),
    [](const auto& test) { return test.param.prefix; });

struct CatalogueFamily {
    std::string prefix;
    std::string name_column;
};

class CatalogueFamilyTest : public StandaloneApplicationTest,
                            public testing::WithParamInterface<CatalogueFamily> {
  protected:
    std::string operation(const std::string& kind) const { return GetParam().prefix + "_" + kind; }
    std::string add(const std::string& name) {
        const RecordSet rs(to_object(call(operation("Find"), "1=2")));
        std::string key = new_key();
        rs.add_new();
        rs.set("DSN", key);
        rs.set(GetParam().name_column, name);
        call(operation("Update"), Variant(rs));
        return key;
    }
};

TEST_P(CatalogueFamilyTest, EntriesAreFoundByNameAndKey) {
    const std::string key = add("Prüfling");
    EXPECT_EQ(call(operation("FindDSN"), GetParam().name_column + " = 'prüfling'"), Variant(key));
    EXPECT_FALSE(RecordSet(to_object(call(operation("FindByDSN"), key))).at_end());
    EXPECT_FALSE(RecordSet(to_object(call(operation("FindByName"), "Prüfling"))).at_end());
    EXPECT_EQ(call(operation("FindDsnByName"), "Prüfling"), Variant(key));
    EXPECT_EQ(call(operation("FindDsnByName"), "Unbekannt"), Variant(""));
    EXPECT_EQ(call(operation("NameByDSN"), key), Variant("Prüfling"));
    EXPECT_EQ(call(operation("NameByDSN"), new_key()), Variant(""));
    EXPECT_EQ(call(operation("DeleteByDsn"), key), Variant(true));
    EXPECT_EQ(call(operation("DeleteByDsn"), key), Variant(false));
}

TEST_P(CatalogueFamilyTest, NamesOfAListAreJoinedOrTheLastOneGiven) {
    const std::string list = add("eins") + "," + new_key() + "," + add("drei");
    const bool joins = GetParam().prefix == "FldArt" || GetParam().prefix == "EMSK";
    EXPECT_EQ(call(operation("NameByDSNList"), list), Variant(joins ? "eins,,drei" : "drei"));
}

INSTANTIATE_TEST_SUITE_P(All, CatalogueFamilyTest,
                         testing::Values(CatalogueFamily{"MKM", "Merkmal"},
                                         CatalogueFamily{"EMSK", "Name"},
                                         CatalogueFamily{"FldArt", "Kürzel"},
                                         CatalogueFamily{"AKTART", "Name"}),
                         [](const auto& test) { return test.param.prefix; });

using FamiliesStandaloneTest = StandaloneApplicationTest;

TEST_F(FamiliesStandaloneTest, ProjectsAndDetailSheetsAreFoundByName) {
    RecordSet project = app->PROJEKTE_Find("1=2");
    project.add_new();
    project.set("DSN", "P1");
    project.set("Bezeichnung", "Neubau");
    app->PROJEKTE_Update(project);
    EXPECT_EQ(app->PROJEKTE_FindDsnByName("neubau"), "P1");
    EXPECT_EQ(app->PROJEKTE_FindDsnByName("Umbau"), "");

    RecordSet sheet = app->Details_Find("1=2");
    sheet.add_new();
    sheet.set("DSN", "D1");
    sheet.set("Oberbegriff", "Finanzierung");
    app->Details_Update(sheet);
    EXPECT_EQ(app->Details_FindDsnByName("Finanzierung"), "D1");
    EXPECT_TRUE(app->Details_FindByName("Heizung").at_end());
}

TEST_F(FamiliesStandaloneTest, OptionsAreFoundWithinTheirFieldKind) {
    const std::string heating = app->FldArt_Create("Heizung", FLDARTTYP_OPTION);
    const std::string energy = app->FldArt_Create("Energie", FLDARTTYP_OPTION);
    const std::string gas = app->FldArtOp_Create("Gas", heating);
    const std::string oil = app->FldArtOp_Create("Erdöl", heating, "2", "Öl", true);
    app->FldArtOp_Create("Gas", energy);
    EXPECT_EQ(app->FldArtOp_FindDsnByName(heating, "Gas"), gas);
    EXPECT_EQ(app->FldArtOp_FindDsnByName(energy, "Erdöl"), "");
    EXPECT_EQ(app->FldArtOp_FindByName(heating, "erdöl").value("Kurz"), Variant("Öl"));
    EXPECT_EQ(app->FldArtOp_NameByDSNList(gas + "," + oil), "Erdöl");
    const RecordSet all = app->FldArtOp_FindByFldArt(heating);
    EXPECT_EQ(all.value("DSN"), Variant(oil));
    all.move_next();
    EXPECT_EQ(all.value("DSN"), Variant(gas));
}

// The main table and the column for it differ in nothing but their case.
TEST_F(FamiliesStandaloneTest, ContractsAreATableAndAColumnOfTheCatalogues) {
    const std::string feature = app->MKM_Create("Indexmiete", "", "", "VERTRÄGE");
    EXPECT_EQ(app->MKM_FindDSN("verträge = 1 AND Merkmal = 'Indexmiete'"), feature);
    EXPECT_EQ(app->MKM_FindDSN("Mkm.VERTRAEGE = 1", "VERTRÄGE, Merkmal"), feature);
    EXPECT_EQ(app->MKM_FindByDSN(feature).value("verträge"), Variant(std::int16_t{1}));
    EXPECT_TRUE(select("SELECT Mkm.verträge, verträge.Kennung FROM Mkm, verträge "
                       "WHERE VERTRAEGE.DSN = Mkm.DSN")
                    .at_end());
}

TEST_F(FamiliesStandaloneTest, AnUnknownFieldOfARecordSetNamesTableAndField) {
    const RecordSet rs = app->AKT_Find("1=2");
    rs.add_new();
    try {
        rs.set("Nmae", "x");
        FAIL() << "the field was taken";
    } catch (const AutomationError& error) {
        EXPECT_NE(error.description().find("AKT"), std::string::npos) << error.what();
        EXPECT_NE(error.description().find("Nmae"), std::string::npos) << error.what();
    }
}

TEST_F(FamiliesStandaloneTest, ADatabaseErrorReachesTheCaller) {
    EXPECT_THROW(app->AKT_Find("Gibtsnicht = 1"), AutomationError);
    EXPECT_THROW(app->AKTART_FindByName("Meier's"), AutomationError);
}

}  // namespace
}  // namespace cvdeveloper
