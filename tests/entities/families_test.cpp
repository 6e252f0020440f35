#include "cvdeveloper/entities/families.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "entities/families/generate/writer.h"
#include "support/expect_error.h"
#include "support/recording_host.h"

namespace cvdeveloper {
namespace {

std::string source_file(const std::string& path) {
    std::ifstream file(std::string(CVDEVELOPER_SOURCE_DIR "/") + path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// What the operations of the statements' file are called with, by the names of their arguments.
Variant argument(std::string_view name, const RecordingHost& host) {
    static const std::map<std::string_view, std::string_view> values{
        {"strWhere", "W"},
        {"strOderBy", "O"},
        {"strKennung", "C-1"},
        {"strMkmDSNCommaList", "M"},
        {"strMkmDsnOld", "M1"},
        {"strMkmDsnNew", "M2"},
        {"strMkmDSN", "M"},
        {"strFldArtDsn", "F"},
        {"strValue", "V"},
        {"strAcl", "A"},
        {"strLinkDsn", "L"},
        {"strOpDsn", "P"},
        {"strSourceDsn", "S"},
        {"strDestDsn", "D"},
        {"strDsnCommaList", "K1,K2"},
        {"strMerkmalName", "N"},
        {"strEmskName", "N"},
        {"strFldArtKuerzel", "N"},
        {"strFldArtOpBezeichnung", "N"},
        {"strAktivitaetenartName", "N"},
        {"strProjektBezeichnung", "N"},
        {"strDetailsOberbegriff", "N"},
    };
    if (name.starts_with("rs")) {
        return host.record_set(row({{"DSN", "K"}}));
    }
    const auto found = values.find(name);
    return found == values.end() ? Variant("K") : Variant(found->second);
}

std::string signature(const Operation& operation) {
    std::string text = std::to_string(operation.id) + " " + std::string(operation.name) + "(";
    for (std::size_t i = 0; i < operation.parameters.size(); ++i) {
        const Parameter& parameter = operation.parameters[i];
        text.append(i == 0 ? "" : ", ");
        text.append(((operation.binding.writes >> i) & 1U) != 0 ? "&" : "").append(parameter.name);
        if (const auto* value = parameter.default_value.get_if<std::string_view>()) {
            text.append(" = \"").append(*value).append("\"");
        }
    }
    return text + ")";
}

// What one operation asks of the host, in one line.
std::string statements(const Operation& operation) {
    RecordingHost host;
    host.set_user({{"STD_MKM1", ""},
                   {"STD_MKM2", ""},
                   {"STD_MKM3", ""},
                   {"STD_MKM4", ""},
                   {"STD_MKM5", Null{}}});
    const auto app = host.attached();
    std::vector<Variant> arguments;
    for (const Parameter& parameter : operation.parameters) {
        arguments.push_back(argument(parameter.name, host));
    }
    app->invoke(operation.name, InvokeKind::Method, {.values = arguments});
    std::string line;
    for (const std::string& entry : host.log()) {
        line.append(line.empty() ? "" : " | ").append(entry);
    }
    return line;
}

TEST(Families, OfferExactlyTheseOperationsAndSendExactlyTheseStatements) {
    std::ifstream file(CVDEVELOPER_SOURCE_DIR "/tests/entities/families_statements.txt");
    std::string expected;
    for (const TopicRows& topic : Families::topics()) {
        for (const Operation& operation : topic.operations) {
            ASSERT_TRUE(std::getline(file, expected)) << operation.name << " is not listed";
            EXPECT_EQ(signature(operation) + ": " + statements(operation), expected);
        }
    }
    EXPECT_FALSE(std::getline(file, expected)) << expected << " is missing";
}

TEST(Families, CheckedInDeclarationsAreWhatTheRowsGive) {
    EXPECT_EQ(source_file("include/cvdeveloper/entities/families.h"), families::written_header());
    EXPECT_EQ(source_file("src/entities/families.cpp"), families::written_members());
}

TEST(Families, HelpTextsAreFilledIn) {
    for (const TopicRows& topic : Families::topics()) {
        for (const Operation& operation : topic.operations) {
            std::string all(topic.help);
            for (const std::string_view text :
                 {operation.help.what, operation.help.result, operation.help.errors,
                  operation.help.tables, operation.help.example}) {
                all.append(text).append("\n");
            }
            for (const Parameter& parameter : operation.parameters) {
                all.append(parameter.name).append(parameter.help);
            }
            EXPECT_EQ(all.find_first_of("{}"), std::string::npos) << operation.name << ": " << all;
            EXPECT_FALSE(operation.help.what.empty()) << operation.name;
        }
    }
}

TEST(Families, HelpTextsNameTheFamilysRecords) {
    const auto app = RecordingHost().attached();
    const Operation* operation =
        app->table().find("VERTRAEGE_FindDsnByKennung", InvokeKind::Method);
    ASSERT_NE(operation, nullptr);
    EXPECT_EQ(operation->help.what,
              "The key of a human key's contract, the lowest where several carry it.");
    EXPECT_EQ(operation->help.tables, "Reads VERTRAEGE.");
    EXPECT_EQ(operation->help.example, "app.VERTRAEGE_FindDsnByKennung(\"100001\")");
}

TEST(Families, CatalogueFamiliesHaveNoFormsAndNoHumanKeys) {
    const auto app = RecordingHost().attached();
    EXPECT_FALSE(app->table().has_member("MKM_Show"));
    EXPECT_FALSE(app->table().has_member("FldArt_FindByKennung"));
    EXPECT_FALSE(app->table().has_member("AD_Detail_Get"));
    EXPECT_FALSE(app->table().has_member("Details_Detail_Set"));
    EXPECT_FALSE(app->table().has_member("OBJ_Merkmal_Get"));
    EXPECT_FALSE(app->table().has_member("PROJEKTE_FindByName"));
}

class FamiliesTest : public testing::Test {
  protected:
    RecordingHost host;
    Ref<Application> app = host.attached();
};

TEST_F(FamiliesTest, FindDsnReadsAllColumnsAndGivesTheFirstKey) {
    host.answer("SELECT * FROM AKT  WHERE Erledigt = 0",
                {.columns = {"Dsn", "Subject"}, .rows = {{"K2", "a"}, {"K1", "b"}}});
    EXPECT_EQ(app->AKT_FindDSN("Erledigt = 0"), "K2");
    EXPECT_EQ(app->AKT_FindDSN("Erledigt = 1"), "");
}

TEST_F(FamiliesTest, FindDsnByKennungGivesTheFirstKey) {
    host.answer("SELECT Dsn FROM VERTRAEGE  WHERE Kennung = 'V-1       ' ORDER BY DSN",
                row({{"Dsn", "K1"}}));
    EXPECT_EQ(app->VERTRAEGE_FindDsnByKennung("V-1"), "K1");
    EXPECT_EQ(app->VERTRAEGE_FindDsnByKennung("V-2"), "");
}

TEST_F(FamiliesTest, DeleteGivesFalseAtTheEndOfARecordSet) {
    EXPECT_TRUE(app->AKT_Delete(host.record_set(row({{"DSN", "K1"}}))));
    EXPECT_FALSE(app->AKT_Delete(host.record_set({})));
    EXPECT_EQ(host.log(), (Lines{"Delete 1", "Update"}));
}

TEST_F(FamiliesTest, DeleteByDsnOfAKeyThatDoesNotExistGivesFalse) {
    host.answer("SELECT * FROM AKT  WHERE DSN='K1'", row({{"DSN", "K1"}}));
    EXPECT_TRUE(app->AKT_DeleteByDsn("K1"));
    EXPECT_FALSE(app->AKT_DeleteByDsn("K2"));
}

TEST_F(FamiliesTest, DeleteByDsnWithTwoRowsOfOneKeyDeletesBoth) {
    host.answer("SELECT * FROM MKM  WHERE DSN='K1'",
                {.columns = {"DSN"}, .rows = {{"K1"}, {"K1"}}});
    EXPECT_TRUE(app->MKM_DeleteByDsn("K1"));
    EXPECT_EQ(host.log(),
              (Lines{"SELECT * FROM MKM  WHERE DSN='K1'", "Delete 1", "Delete 2", "Update"}));
}

TEST_F(FamiliesTest, ShowOfActivitiesWithAnEmptyConditionLeavesItEmpty) {
    app->AKT_Show("");
    EXPECT_EQ(host.log(),
              (Lines{"Panes F_AKT", "Find 1=2", "Panes F_AKT", "Find ", "Panes F_AKT", "Show"}));
}

TEST_F(FamiliesTest, ShowOfOtherFamiliesPassesTheConditionOn) {
    app->VERTRAEGE_Show("Aktiv = 1");
    EXPECT_EQ(host.log(), (Lines{"Panes F_VERTRÄGE", "Find 1=2", "Panes F_VERTRÄGE",
                                 "Find Aktiv = 1", "Panes F_VERTRÄGE", "Show"}));
}

TEST_F(FamiliesTest, MerkmalContainsAndGetGiveWhatTheRecordHas) {
    host.answer("SELECT * FROM AKTMKM WHERE (link_dsn='K') AND (mkm_dsn='A')",
                row({{"DSN", "L"}, {"Link_DSN", "K"}, {"MKM_DSN", "A"}}));
    host.answer("SELECT * FROM AKTMkm WHERE Link_dsn='K'",
                {.columns = {"Mkm_Dsn"}, .rows = {{"A"}, {"B"}}});
    EXPECT_TRUE(app->AKT_Merkmal_Contains("K", "A"));
    EXPECT_FALSE(app->AKT_Merkmal_Contains("K", "B"));
    EXPECT_EQ(app->AKT_Merkmal_Get("K"), "A,B");
}

TEST_F(FamiliesTest, MerkmalStdDsnCommaListIsTheUsersList) {
    host.set_user({{"STD_MKM1", "12"},
                   {"STD_MKM2", ""},
                   {"STD_MKM3", "30"},
                   {"STD_MKM4", Null{}},
                   {"STD_MKM5", ""}});
    EXPECT_EQ(app->OBJ_Merkmal_StdDsnCommaList(), "12,30");
    EXPECT_EQ(app->AD_Merkmal_StdDsnCommaList(), "12,30");
}

TEST_F(FamiliesTest, DetailSetLeavesAclAndLinkAloneUnlessTheyAreGiven) {
    app->OBJ_Detail_Set("K", "F", "120 qm");
    const Lines log = host.log();
    EXPECT_EQ(Lines(log.begin() + 1, log.end()),
              (Lines{"AddNew", "DSN = 'GUID-1'", "OBJ_DSN = 'K'", "FldArt_DSN = 'F'",
                     "Eingabe = '120 qm'", "Update"}));
}

void answer_names(RecordingHost& host, const std::string& table, const std::string& column) {
    host.answer("SELECT " + column + " FROM " + table + " WHERE dsn='1' ", row({{column, "eins"}}));
    host.answer("SELECT " + column + " FROM " + table + " WHERE dsn='3' ", row({{column, "drei"}}));
}

TEST_F(FamiliesTest, FeaturesOptionsAndActivityTypesGiveTheLastNameOfAListOnly) {
    answer_names(host, "MKM", "Merkmal");
    answer_names(host, "FldArtOp", "Bezeichnung");
    answer_names(host, "Aktivitätenarten", "Name");
    EXPECT_EQ(app->MKM_NameByDSNList("1,2,3"), "drei");
    EXPECT_EQ(app->FldArtOp_NameByDSNList("1,2,3"), "drei");
    EXPECT_EQ(app->AKTART_NameByDSNList("3,1"), "eins");
    EXPECT_EQ(app->MKM_NameByDSNList("1,2"), "");
    EXPECT_EQ(app->MKM_NameByDSNList(""), "");
}

TEST_F(FamiliesTest, FieldKindsAndEntryMasksJoinTheNamesOfAList) {
    answer_names(host, "FldArt", "Kürzel");
    answer_names(host, "EMSK", "NAME");
    EXPECT_EQ(app->FldArt_NameByDSNList("1,2,3"), "eins,,drei");
    EXPECT_EQ(app->EMSK_NameByDSNList("3,1"), "drei,eins");
    EXPECT_EQ(app->FldArt_NameByDSNList("2"), "");
    EXPECT_EQ(app->EMSK_NameByDSNList("2,2"), ",");
    EXPECT_EQ(app->EMSK_NameByDSNList(""), "");
}

TEST_F(FamiliesTest, NameByDsnOfAnUnknownKeyIsEmpty) {
    answer_names(host, "FldArtOp", "Bezeichnung");
    EXPECT_EQ(app->FldArtOp_NameByDSN("1"), "eins");
    EXPECT_EQ(app->FldArtOp_NameByDSN("2"), "");
}

TEST_F(FamiliesTest, FindByNameInsertsTheNameAsItStands) {
    app->AKTART_FindByName("Meier's");
    EXPECT_EQ(host.log(),
              Lines{"SELECT * FROM Aktivitätenarten  WHERE Name = 'Meier's' ORDER BY DSN"});
}

TEST_F(FamiliesTest, UpdateHandsBackTheRecordSetThatTheHostLeaves) {
    Variant argument = host.record_set(row({{"DSN", "K1"}}));
    app->invoke("AKT_Update", InvokeKind::Method, {.values = {&argument, 1}, .by_reference = 1});
    EXPECT_TRUE(argument.is<ObjectRef>());
    EXPECT_EQ(host.log(), Lines{"Update"});
}

TEST(FamiliesWithoutASession, RaiseError601) {
    const auto app = make_object<Application>();
    const auto expect_601 = [](auto call) {
        expect_error(601, "", "CVDeveloper wurde nicht initialisiert", call);
    };
    expect_601([&] { app->AKT_Find("1=1"); });
    expect_601([&] { app->AKT_FindByDSN("K"); });
    expect_601([&] { app->AKT_DeleteByDsn("K"); });
    expect_601([&] { app->AKT_ShowDSN("K"); });
    expect_601([&] { app->AKT_Merkmal_Add("K", "M"); });
    expect_601([&] { app->AKT_Detail_Get("K", "F"); });
    expect_601([&] { app->MKM_NameByDSNList("K"); });
    expect_601([&] { app->FldArtOp_FindByName("F", "N"); });
}

TEST(FamiliesWithAConnector, ShowNothing) {
    RecordingHost host;
    const auto app = host.connected(".");
    host.clear_log();
    app->AKT_Show("1=1");
    app->AD_ShowDSN("K");
    EXPECT_EQ(host.log(), Lines{});
}

}  // namespace
}  // namespace cvdeveloper
