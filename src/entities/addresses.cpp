#include "cvdeveloper/entities/addresses.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "cvdeveloper/data/unit.h"
#include "cvdeveloper/entities/master_data.h"
#include "entities/new_record.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t salutation_units = 200;
constexpr std::size_t company_units = 254;
constexpr std::size_t name_units = 100;
constexpr std::size_t street_units = 254;
constexpr std::size_t postcode_units = 50;
constexpr std::size_t town_units = 30;

// Both with a blank between them and none around.
std::string joined(std::string_view first, std::string_view second) {
    std::string text(first);
    text.append(" ").append(second);
    return std::string(trim_blanks(text));
}

// The title and the first name in what stands before the family name. Each word goes in front of
// those before it; callers have come to rely on that order.
struct GivenNames {
    std::string title;
    std::string first_name;
};
GivenNames given_names(std::string_view text, std::string_view titles) {
    const std::string known = " " + replace_all(upper_case(titles), "\r\n", " ") + " ";
    GivenNames names;
    std::string rest(text);
    while (!trim_blanks(rest).empty()) {
        const std::string word = take_first(rest, " ");
        const bool is_title = known.find(" " + upper_case(word) + " ") != std::string::npos;
        std::string& part = is_title ? names.title : names.first_name;
        part = joined(word, part);
    }
    return names;
}

}  // namespace

RecordSet Addresses::AD_New() const {
    RecordSet rs = new_coded_record(session(), "AD");
    rs.set("FArchiv", std::int16_t{0});
    rs.set("BRIEFANREDE", cut_text(AD_GetStdBriefAnrede(), salutation_units));
    return rs;
}

std::string Addresses::AD_Create(std::string_view strFirma, std::string_view strName,
                                 std::string_view strStrasse, std::string_view strPLZ,
                                 std::string_view strOrt, std::string_view strNotiz,
                                 std::string_view strAdRootDsn) const {
    return in_unit(session(), [&] {
        RecordSet rs = AD_New();
        rs.set("Firma", cut_text(strFirma, company_units));
        rs.set("Name", cut_text(strName, name_units));
        rs.set("Straße", cut_text(strStrasse, street_units));
        rs.set("Land_Plz", cut_text(strPLZ, postcode_units));
        rs.set("Ort", cut_text(strOrt, town_units));
        rs.set("Notiz", strNotiz);
        rs.set("AD_DSN", session().util().SqlStrNull(strAdRootDsn));
        return create_record(session(), "AD", rs);
    });
}

void Addresses::AD_SetName(const RecordSet& rsAd, std::string_view strTitle,
                           std::string_view strFirstName, std::string_view strFamilyName) const {
    // The host finds the family name behind the "#".
    std::string name = joined(strTitle, strFirstName);
    name.append(" #").append(strFamilyName);
    rsAd.set("NAME", cut_text(name, name_units));
}

void Addresses::AD_SetNameAndSalutation(const RecordSet& rsAd, std::string_view strSalutationShort,
                                        std::string_view strTitle, std::string_view strFirstName,
                                        std::string_view strFamilyName) const {
    const Ref<clsSalutationList> list = MasterData(session()).STD_GetSalutationList();
    if (list->Count() > 0) {
        // An unknown short form takes the first salutation.
        const std::int16_t found = list->FindByShort(strSalutationShort);
        const std::int16_t item = found < 1 ? std::int16_t{1} : found;
        rsAd.set("ANREDEKURZ", list->SalutationShort(item));
        rsAd.set("ANREDE", list->SalutationLong(item));
        rsAd.set("BRIEFANREDE",
                 list->ReplaceSalutationLetterTag(list->SalutationLetter(item), strTitle,
                                                  strFirstName, strFamilyName));
    }
    AD_SetName(rsAd, strTitle, strFirstName, strFamilyName);
}

bool Addresses::AD_GetName(const RecordSet& rsAd, Variant& strTitle, Variant& strFirstName,
                           Variant& strFamilyName) const {
    strTitle = "";
    strFirstName = "";
    strFamilyName = "";
    if (!rsAd || rsAd.at_end()) {
        return false;
    }
    const std::string name = session().text(rsAd.value("NAME"));
    const std::string family_name = session().text(rsAd.value("IDX_NAME"));
    const std::size_t units = length_in_units(name);
    const std::size_t family_units = length_in_units(family_name);
    const std::string_view rest =
        units > family_units ? first_units(name, units - family_units) : std::string_view();
    strFamilyName = family_name;

    GivenNames names = given_names(trim_blanks(rest), MasterData(session()).STD_GetField("TITEL"));
    strTitle = std::move(names.title);
    strFirstName = std::move(names.first_name);
    return true;
}

std::string Addresses::AD_FindDSNByPhoneEMail(std::string_view strPhoneEMail) const {
    const RecordSet rs =
        Gateway(session()).CV_GetRecordset("SELECT Ad_Dsn FROM Tapi WHERE Nummer LIKE '" +
                                           std::string(strPhoneEMail) + "' ORDER BY Dsn");
    return rs.at_end() ? std::string() : session().text(rs.value("Ad_Dsn"));
}

Ref<clsPhoneList> Addresses::AD_GetPhoneList(const RecordSet& rsAd) const {
    auto list = make_object<clsPhoneList>();
    list->put_AsString(session().text(rsAd.value("TELEFON")));
    return list;
}

void Addresses::AD_SetPhoneList(const RecordSet& rsAd, Ref<clsPhoneList> oPhoneList) const {
    const Ref<clsPhoneList> list = std::move(oPhoneList);
    if (!list) {
        raise(RuntimeError::ObjectNotSet);
    }
    rsAd.set("TELEFON", list->AsString());
}

std::string Addresses::details_condition(std::string_view address, std::string_view mask) const {
    host::Util& util = session().util();
    return "Ad_Dsn=" + util.SqlUid(address) + " AND emsk_Dsn=" + util.SqlUid(mask);
}

RecordSet Addresses::AD_GetDetails(std::string_view strAdDsn, std::string_view strEmskDsn) const {
    return TableOperations(session()).Sql_Find("Details", details_condition(strAdDsn, strEmskDsn),
                                               "DSN");
}

std::string Addresses::AD_GetDetailsDsn(std::string_view strAdDsn,
                                        std::string_view strEmskDsn) const {
    return TableOperations(session()).Sql_GetDSN("Details", details_condition(strAdDsn, strEmskDsn),
                                                 "DSN");
}

std::string Addresses::AD_GetStdBriefAnrede() const {
    const GuardLock lock(&session().guard);
    std::string& kept = session().letter_salutation;
    if (kept.empty()) {
        std::string list = MasterData(session()).STD_GetField("ANREDE");
        take_first(list, "\t");  // the short form
        take_first(list, "\t");  // the long form
        kept = take_first(list, "\r\n");
    }
    return kept;
}

}  // namespace cvdeveloper
