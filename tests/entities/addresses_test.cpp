#include "cvdeveloper/entities/addresses.h"

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

constexpr char salutations[] =
    "Frau\tFrau\tSehr geehrte Frau {NACHNAME}\r\n"
    "Herr\tHerrn\tSehr geehrter Herr {NACHNAME}, lieber {VORNAME}";

class AddressesTest : public RecordTest {
  protected:
    AddressesTest() { answer_std("Kennung_AD", "A-1"); }

    struct Name {
        bool found = false;
        Variant title = "alt", first_name = "alt", family_name = "alt";
    };
    Name name_of(const RecordSet& row_of_name) const {
        Name name;
        name.found =
            addresses.AD_GetName(row_of_name, name.title, name.first_name, name.family_name);
        return name;
    }
    Name name_of(Variant name, Variant family_name) const {
        return name_of(host.record_set(
            row({{"NAME", std::move(name)}, {"IDX_NAME", std::move(family_name)}})));
    }
    static void expect(const Name& name, const char* title, const char* first_name,
                       const char* family_name) {
        EXPECT_TRUE(name.found);
        EXPECT_EQ(name.title, Variant(title));
        EXPECT_EQ(name.first_name, Variant(first_name));
        EXPECT_EQ(name.family_name, Variant(family_name));
    }

    RecordSet rs = host.record_set(row({{"NAME", Null{}}, {"TELEFON", Null{}}}));
    Addresses addresses{session};
};

TEST_F(AddressesTest, NewAddressHasKeysArchiveFlagAndLetterSalutation) {
    answer_std("ANREDE", salutations);
    const RecordSet address = addresses.AD_New();
    EXPECT_EQ(host.log(),
              (Lines{"SELECT * FROM AD  WHERE 1=2", "AddNew", "DSN = 'GUID-1'",
                     "SELECT Kennung_AD FROM Std", "Kennung = 'A-1'", "FArchiv = 0",
                     "SELECT ANREDE FROM Std", "BRIEFANREDE = 'Sehr geehrte Frau {NACHNAME}'"}));
    EXPECT_EQ(address.value("FArchiv"), Variant(std::int16_t{0}));
}

TEST_F(AddressesTest, LetterSalutationOfANewAddressIsCut) {
    answer_std("ANREDE", "Frau\tFrau\t" + std::string(300, 'x'));
    EXPECT_EQ(addresses.AD_New().value("BRIEFANREDE"), Variant(std::string(200, 'x')));
    EXPECT_EQ(addresses.AD_GetStdBriefAnrede(), std::string(300, 'x'));
}

TEST_F(AddressesTest, CreateWritesTheColumnsThenRightsThenFeatures) {
    answer_std("ANREDE", salutations);
    EXPECT_EQ(addresses.AD_Create("Firma X", "", "", "45127", "Essen"), "GUID-1");
    EXPECT_EQ(host.log(),
              together({{"SELECT * FROM AD  WHERE 1=2", "AddNew", "DSN = 'GUID-1'",
                         "SELECT Kennung_AD FROM Std", "Kennung = 'A-1'", "FArchiv = 0",
                         "SELECT ANREDE FROM Std", "BRIEFANREDE = 'Sehr geehrte Frau {NACHNAME}'",
                         "Firma = 'Firma X'", "Name = ''", "Straße = ''", "Land_Plz = '45127'",
                         "Ort = 'Essen'", "Notiz = ''", "AD_DSN = Null"},
                        saving("ADMKM")}));
}

TEST_F(AddressesTest, CreateCutsEachTextToItsColumnAndLeavesTheNoteWhole) {
    const std::string text(300, 'x');
    addresses.AD_Create(text, text, text, text, std::string(40, 'o'), text, "ROOT");
    EXPECT_EQ(first_written("Firma"), "'" + std::string(254, 'x') + "'");
    EXPECT_EQ(first_written("Name"), "'" + std::string(100, 'x') + "'");
    EXPECT_EQ(first_written("Straße"), "'" + std::string(254, 'x') + "'");
    EXPECT_EQ(first_written("Land_Plz"), "'" + std::string(50, 'x') + "'");
    EXPECT_EQ(first_written("Ort"), "'" + std::string(30, 'o') + "'");
    EXPECT_EQ(first_written("Notiz"), "'" + text + "'");
    EXPECT_EQ(first_written("AD_DSN"), "'ROOT'");
}

TEST_F(AddressesTest, CreateStoresTheNameAsItStands) {
    addresses.AD_Create("", "Dr. Hans Meier");
    EXPECT_EQ(first_written("Name"), "'Dr. Hans Meier'");
}

TEST_F(AddressesTest, LimitsCountCharactersOutsideTheBasicPlaneTwiceAndCutNoneInTwo) {
    std::string town(29, 'o');
    addresses.AD_Create("", "", "", "", town + "ü");
    addresses.AD_Create("", "", "", "", town + "😀");
    EXPECT_EQ(first_written("Ort"), "'" + town + "ü'");
    const Lines log = host.log();
    EXPECT_EQ(std::count(log.begin(), log.end(), "Ort = '" + town + "'"), 1);
}

TEST_F(AddressesTest, SetNameMarksTheFamilyNameAndSavesNothing) {
    addresses.AD_SetName(rs, "Dr.", "Hans", "Meier");
    addresses.AD_SetName(rs, "", "", "Meier");
    addresses.AD_SetName(rs, " Dr. ", "", "Meier");
    addresses.AD_SetName(rs, "", "Hans", std::string(100, 'x'));
    EXPECT_EQ(host.log(),
              (Lines{"NAME = 'Dr. Hans #Meier'", "NAME = ' #Meier'", "NAME = 'Dr. #Meier'",
                     "NAME = 'Hans #" + std::string(94, 'x') + "'"}));
}

TEST_F(AddressesTest, SetNameAndSalutationWritesAllFourColumnsAndSavesNothing) {
    answer_std("ANREDE", salutations);
    addresses.AD_SetNameAndSalutation(rs, "HERR", "Dr.", "Hans", "Meier");
    EXPECT_EQ(host.log(),
              (Lines{"SELECT ANREDE FROM Std", "ANREDEKURZ = 'Herr'", "ANREDE = 'Herrn'",
                     "BRIEFANREDE = 'Sehr geehrter Herr Dr. Meier, lieber Hans'",
                     "NAME = 'Dr. Hans #Meier'"}));
}

TEST_F(AddressesTest, UnknownSalutationTakesTheFirst) {
    answer_std("ANREDE", salutations);
    addresses.AD_SetNameAndSalutation(rs, "xyz", "", "Eva", "Meier");
    EXPECT_EQ(rs.value("ANREDEKURZ"), Variant("Frau"));
    EXPECT_EQ(rs.value("BRIEFANREDE"), Variant("Sehr geehrte Frau Meier"));
}

TEST_F(AddressesTest, WithoutSalutationsOnlyTheNameIsWritten) {
    answer_std("ANREDE", Null{});
    addresses.AD_SetNameAndSalutation(rs, "Herr", "Dr.", "Hans", "Meier");
    EXPECT_EQ(host.log(), (Lines{"SELECT ANREDE FROM Std", "NAME = 'Dr. Hans #Meier'"}));
}

TEST_F(AddressesTest, GetNameTellsTitlesFromFirstNamesInReverseOrder) {
    answer_std("TITEL", "Dr.\r\nProf.");
    expect(name_of("Prof. Dr. Hans Meier", "Meier"), "Dr. Prof.", "Hans", "Meier");
    expect(name_of("Hans Peter Meier", "Meier"), "", "Peter Hans", "Meier");
    expect(name_of("dr.  Hans Meier", "Meier"), "dr.", "Hans", "Meier");
    expect(name_of("Meier", "Meier"), "", "", "Meier");
}

TEST_F(AddressesTest, GetNameTakesAPartOfATitleForAName) {
    answer_std("TITEL", "Prof. Dr.");
    expect(name_of("Prof Meier", "Meier"), "", "Prof", "Meier");
}

TEST_F(AddressesTest, GetNameOfAFamilyNameLongerThanTheNameHasNoOtherParts) {
    expect(name_of("Meier", "Meier-Schmidt"), "", "", "Meier-Schmidt");
    expect(name_of(Null{}, Null{}), "", "", "");
}

TEST_F(AddressesTest, GetNameWithoutTitlesTakesEveryWordForAName) {
    answer_std("TITEL", Null{});
    expect(name_of("Dr. Jörg Groß-Öhler", "Groß-Öhler"), "", "Jörg Dr.", "Groß-Öhler");
}

TEST_F(AddressesTest, GetNameReadsTitlesEvenWithoutAnythingToSortOut) {
    name_of("Meier", "Meier");
    EXPECT_EQ(host.log(), Lines{"SELECT TITEL FROM Std"});
}

TEST_F(AddressesTest, GetNameOfNoRowIsFalseAndEmptiesTheTexts) {
    for (const RecordSet& none : {RecordSet(), host.record_set({})}) {
        const Name name = name_of(none);
        EXPECT_FALSE(name.found);
        EXPECT_EQ(name.title, Variant(""));
        EXPECT_EQ(name.first_name, Variant(""));
        EXPECT_EQ(name.family_name, Variant(""));
    }
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(AddressesTest, PhoneNumberIsLookedUpAsItStands) {
    const std::string question = "SELECT Ad_Dsn FROM Tapi WHERE Nummer LIKE '0201%' ORDER BY Dsn";
    host.answer(question, {.columns = {"Ad_Dsn"}, .rows = {{"AD1"}, {"AD2"}}});
    EXPECT_EQ(addresses.AD_FindDSNByPhoneEMail("0201%"), "AD1");
    EXPECT_EQ(addresses.AD_FindDSNByPhoneEMail("o'neil@example.org"), "");
    EXPECT_EQ(host.log(), (Lines{question,
                                 "SELECT Ad_Dsn FROM Tapi WHERE Nummer LIKE "
                                 "'o'neil@example.org' ORDER BY Dsn"}));
}

TEST_F(AddressesTest, NumberOfNoAddressIsNotFound) {
    host.answer("SELECT Ad_Dsn FROM Tapi WHERE Nummer LIKE '1' ORDER BY Dsn",
                row({{"Ad_Dsn", Null{}}}));
    EXPECT_EQ(addresses.AD_FindDSNByPhoneEMail("1"), "");
}

TEST_F(AddressesTest, PhoneListGoesThroughTheCurrentRow) {
    const RecordSet address = host.record_set(row({{"TELEFON", "0201 1\t\tBüro\r\n0201 2\tx"}}));
    const Ref<clsPhoneList> list = addresses.AD_GetPhoneList(address);
    EXPECT_EQ(list->Count(), 2);
    EXPECT_EQ(list->PhoneComment(1), "Büro");
    list->Add("0201 3", "", "");
    addresses.AD_SetPhoneList(address, list);
    EXPECT_EQ(host.log(), Lines{"TELEFON = '0201 1\t\tBüro\r\n0201 2\tx\r\n0201 3\t\t'"});
}

TEST_F(AddressesTest, AddressWithoutPhonesGivesAnEmptyList) {
    EXPECT_EQ(addresses.AD_GetPhoneList(host.record_set(row({{"TELEFON", Null{}}})))->Count(), 0);
}

TEST_F(AddressesTest, SettingNoPhoneListIsErrorObjectNotSet) {
    expect_error_number(91, [&] { addresses.AD_SetPhoneList(rs, nullptr); });
}

TEST_F(AddressesTest, DetailSheetsAreFoundByAddressAndMask) {
    const std::string tail = " FROM Details  WHERE Ad_Dsn='AD1' AND emsk_Dsn='E1' ORDER BY DSN";
    host.answer("SELECT Dsn" + tail, row({{"Dsn", "D1"}}));
    EXPECT_TRUE(addresses.AD_GetDetails("AD1", "E1").at_end());
    EXPECT_EQ(addresses.AD_GetDetailsDsn("AD1", "E1"), "D1");
    EXPECT_EQ(addresses.AD_GetDetailsDsn("AD1", ""), "");
    EXPECT_EQ(host.log(),
              (Lines{"SELECT *" + tail, "SELECT Dsn" + tail,
                     "SELECT Dsn FROM Details  WHERE Ad_Dsn='AD1' AND emsk_Dsn='' ORDER BY DSN"}));
}

TEST_F(AddressesTest, StandardLetterSalutationIsReadOnce) {
    answer_std("ANREDE", salutations);
    answer_std("ANREDE", "neu\tneu\tneu");
    EXPECT_EQ(addresses.AD_GetStdBriefAnrede(), "Sehr geehrte Frau {NACHNAME}");
    EXPECT_EQ(addresses.AD_GetStdBriefAnrede(), "Sehr geehrte Frau {NACHNAME}");
    EXPECT_EQ(host.log(), Lines{"SELECT ANREDE FROM Std"});
}

TEST_F(AddressesTest, EmptyLetterSalutationIsAskedForAgain) {
    answer_std("ANREDE", "");
    answer_std("ANREDE", "Frau\tFrau");
    answer_std("ANREDE", salutations);
    EXPECT_EQ(addresses.AD_GetStdBriefAnrede(), "");
    EXPECT_EQ(addresses.AD_GetStdBriefAnrede(), "");
    EXPECT_EQ(addresses.AD_GetStdBriefAnrede(), "Sehr geehrte Frau {NACHNAME}");
    EXPECT_EQ(host.log(), Lines(3, "SELECT ANREDE FROM Std"));
}

TEST_F(AddressesTest, EverythingThatNeedsTheHostIsRefusedWithoutASession) {
    app->Corvanta_Done();
    expect_error_number(601, [&] { addresses.AD_New(); });
    expect_error_number(601, [&] { addresses.AD_Create(); });
    expect_error_number(601, [&] { addresses.AD_SetNameAndSalutation(rs, "", "", "", ""); });
    expect_error_number(601, [&] { name_of(rs); });
    expect_error_number(601, [&] { addresses.AD_FindDSNByPhoneEMail("1"); });
    expect_error_number(601, [&] { addresses.AD_GetPhoneList(rs); });
    expect_error_number(601, [&] { addresses.AD_GetDetails("A", "B"); });
    expect_error_number(601, [&] { addresses.AD_GetDetailsDsn("A", "B"); });
    expect_error_number(601, [&] { addresses.AD_GetStdBriefAnrede(); });
}

}  // namespace
}  // namespace cvdeveloper
