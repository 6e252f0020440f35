// Making records as scripts do: by the operation's name, with named arguments and defaults.
#include <array>

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

class RecordsByNameTest : public RecordTest {
  protected:
    Variant call(std::string_view operation,
                 const std::vector<std::pair<std::string_view, Variant>>& named = {}) {
        std::vector<Variant> values;
        std::vector<std::string_view> names;
        for (const auto& [name, value] : named) {
            names.push_back(name);
            values.push_back(value);
        }
        return app->invoke(operation, InvokeKind::Method, {.values = values, .names = names});
    }
};

TEST_F(RecordsByNameTest, EveryRecordCanBeMadeWithoutOptionalArguments) {
    for (const std::string_view operation :
         {"AKT_Create", "AKT_CreateEMail", "AKTART_Create", "OBJ_Create", "PROJEKTE_Create",
          "ANF_Create", "AKTEN_Create", "VERTRAEGE_Create", "AD_Create"}) {
        EXPECT_TRUE(call(operation).is<std::string>()) << operation;
    }
}

TEST_F(RecordsByNameTest, DetailSheetNeedsAddressAndMask) {
    expect_error_number(449, [&] { call("Details_Create", {{"strAdDsn", "AD1"}}); });
    EXPECT_EQ(call("Details_Create", {{"strEmskDsn", ""}, {"strAdDsn", "AD1"}}), Variant("GUID-1"));
}

TEST_F(RecordsByNameTest, EnumerationsAreTakenAsNumbersAndStoredAsSuch) {
    call("ANF_Create", {{"enumEART", std::int16_t{2}}, {"lngAbteilung", "7"}});
    EXPECT_EQ(first_written("EART"), "2");
    EXPECT_EQ(first_written("Abteilung"), "7");
}

TEST_F(RecordsByNameTest, NullIntoATextIsErrorNull) {
    expect_error_number(94, [&] { call("AD_Create", {{"strOrt", Null{}}}); });
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(RecordsByNameTest, NamePartsComeBackThroughTheCallersVariables) {
    answer_std("TITEL", "Dr.");
    std::array<Variant, 4> values{
        host.record_set(row({{"NAME", "Dr. Hans Meier"}, {"IDX_NAME", "Meier"}})), Empty{}, Empty{},
        Empty{}};
    const Variant found =
        app->invoke("AD_GetName", InvokeKind::Method, {.values = values, .by_reference = 0b1110});
    EXPECT_EQ(found, Variant(true));
    EXPECT_EQ(values[1], Variant("Dr."));
    EXPECT_EQ(values[2], Variant("Hans"));
    EXPECT_EQ(values[3], Variant("Meier"));
}

TEST_F(RecordsByNameTest, NameOfNothingIsFalse) {
    EXPECT_EQ(app->call("AD_GetName", Null{}, "", "", ""), Variant(false));
}

TEST_F(RecordsByNameTest, PhoneListMustBeThatClass) {
    const RecordSet rs = host.record_set(row({{"TELEFON", "1\t\t"}}));
    const Variant list = app->call("AD_GetPhoneList", rs);
    app->call("AD_SetPhoneList", rs, list);
    EXPECT_EQ(host.log(), Lines{"TELEFON = '1\t\t'"});
    expect_error_number(13, [&] { app->call("AD_SetPhoneList", rs, rs); });
    expect_error_number(91, [&] { app->call("AD_SetPhoneList", rs, Null{}); });
}

TEST_F(RecordsByNameTest, CachesLiveAsLongAsTheApplication) {
    answer_std("ANREDE", "Frau\tFrau\tSehr geehrte Frau");
    answer_std("MMDateiLang", "Bild");
    EXPECT_EQ(app->call("AD_GetStdBriefAnrede"), Variant("Sehr geehrte Frau"));
    EXPECT_EQ(app->call("OBJ_Bild_StdBezLang"), Variant("Bild"));
    app->Corvanta_Done();
    EXPECT_EQ(app->call("AD_GetStdBriefAnrede"), Variant("Sehr geehrte Frau"));
    EXPECT_EQ(app->call("OBJ_Bild_StdBezLang"), Variant("Bild"));
    EXPECT_EQ(host.log(), (Lines{"SELECT ANREDE FROM Std", "SELECT MMDateiLang FROM Std"}));
}

}  // namespace
}  // namespace cvdeveloper
