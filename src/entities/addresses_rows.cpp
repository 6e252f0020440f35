#include "cvdeveloper/entities/addresses.h"
#include "data/help_texts.h"
#include "entities/record_parameters.h"

namespace cvdeveloper {

namespace {

constexpr Parameter row_parameter{.name = "rsAd", .help = "record set on the address"};
constexpr Parameter title_parameter{.name = "strTitle", .help = "title"};
constexpr Parameter first_name_parameter{.name = "strFirstName", .help = "first name"};
constexpr Parameter family_name_parameter{.name = "strFamilyName", .help = "family name"};

constexpr Parameter create_parameters[] = {
    {.name = "strFirma", .help = "company, cut to 254 characters", .default_value = ""},
    {.name = "strName",
     .help = "name, stored as it stands, cut to 100 characters; \"#\" before the family name",
     .default_value = ""},
    {.name = "strStrasse", .help = "street, cut to 254 characters", .default_value = ""},
    {.name = "strPLZ", .help = "postcode, cut to 50 characters", .default_value = ""},
    {.name = "strOrt", .help = "town, cut to 30 characters", .default_value = ""},
    record_parameter::note,
    {.name = "strAdRootDsn", .help = "key of the address above it", .default_value = ""},
};
constexpr Parameter set_name_parameters[] = {row_parameter, title_parameter, first_name_parameter,
                                             family_name_parameter};
constexpr Parameter set_salutation_parameters[] = {
    row_parameter,
    {.name = "strSalutationShort",
     .help = "short form of the salutation; an unknown one takes the first of the list"},
    title_parameter,
    first_name_parameter,
    family_name_parameter,
};
constexpr Parameter get_name_parameters[] = {
    row_parameter,
    {.name = "strTitle", .help = "gets the title", .direction = Direction::InOut},
    {.name = "strFirstName", .help = "gets the first name", .direction = Direction::InOut},
    {.name = "strFamilyName", .help = "gets the family name", .direction = Direction::InOut},
};
constexpr Parameter find_parameters[] = {
    {.name = "strPhoneEMail",
     .help =
         "phone number or e-mail address, inserted as it stands; \"%\" and \"_\" are wildcards"},
};
constexpr Parameter row_parameters[] = {row_parameter};
constexpr Parameter set_phone_list_parameters[] = {
    row_parameter,
    {.name = "oPhoneList", .help = "a clsPhoneList"},
};
constexpr Parameter details_parameters[] = {
    {.name = "strAdDsn", .help = "key of the address"},
    {.name = "strEmskDsn", .help = "key of the entry mask"},
};

constexpr char row_errors[] =
    "601 \"CVDeveloper wurde nicht initialisiert\" without a session; the record set's error "
    "without a current row.";

constexpr Operation rows[] = {
    {.id = 1650,
     .name = "AD_New",
     .kind = OperationKind::Method,
     .binding = bind<&Addresses::AD_New>,
     .parameters = {},
     .help = {.what = "A new, unsaved address with its key, its human key, the archive flag 0 and "
                      "the standard letter salutation, cut to 200 characters. Fill it and hand "
                      "it to AD_Update.",
              .result = "A record set of AD on the new row.",
              .errors = help::session_and_host_errors,
              .tables = "Reads AD (its columns) and Std (Kennung_AD, ANREDE).",
              .example = "rs = app.AD_New()"}},
    {.id = 1651,
     .name = "AD_Create",
     .kind = OperationKind::Method,
     .binding = bind<&Addresses::AD_Create>,
     .parameters = create_parameters,
     .help = {.what = "Saves a new address and gives it the user's standard features. The rights "
                      "are the user's standard ones. An empty key is stored as null.",
              .result = "The new address's key.",
              .errors = help::session_and_host_errors,
              .tables = "Writes AD and ADMKM; reads Benutzer and Std.",
              .example = "app.AD_Create(\"Firma X\", strPLZ=\"45127\", strOrt=\"Essen\")"}},
    {.id = 1652,
     .name = "AD_SetName",
     .kind = OperationKind::Method,
     .binding = bind<&Addresses::AD_SetName>,
     .parameters = set_name_parameters,
     .help = {.what = "Writes NAME in the current row, with \"#\" before the family name, cut to "
                      "100 characters. Nothing is saved.",
              .errors = "The record set's error without a current row.",
              .example = "app.AD_SetName(rs, \"Dr.\", \"Hans\", \"Meier\")"}},
    {.id = 1653,
     .name = "AD_SetNameAndSalutation",
     .kind = OperationKind::Method,
     .binding = bind<&Addresses::AD_SetNameAndSalutation>,
     .parameters = set_salutation_parameters,
     .help = {.what = "Writes ANREDEKURZ, ANREDE and BRIEFANREDE of a salutation in the current "
                      "row, with the person's name in the letter's line, then NAME as AD_SetName "
                      "does. Without any salutation in the master data NAME alone. Nothing is "
                      "saved.",
              .errors = row_errors,
              .tables = "Reads Std (ANREDE).",
              .example = "app.AD_SetNameAndSalutation(rs, \"Herr\", \"Dr.\", \"Hans\", "
                         "\"Meier\")"}},
    {.id = 1654,
     .name = "AD_GetName",
     .kind = OperationKind::Method,
     .binding = bind<&Addresses::AD_GetName>,
     .parameters = get_name_parameters,
     .help = {.what = "Takes the name of the current row apart. IDX_NAME is the family name; of "
                      "the words before it those that TITEL lists are the title. Several titles "
                      "or first names come in reverse order.",
              .result = "True; False, and three empty texts, for nothing and at the end of the "
                        "record set.",
              .errors = help::session_and_host_errors,
              .tables = "Reads Std (TITEL).",
              .example = "app.AD_GetName(rs, title, first, family)"}},
    {.id = 1655,
     .name = "AD_FindDSNByPhoneEMail",
     .kind = OperationKind::Method,
     .binding = bind<&Addresses::AD_FindDSNByPhoneEMail>,
     .parameters = find_parameters,
     .help = {.what = "Finds an address by a phone number or an e-mail address, the lowest entry "
                      "where several fit. A quote inside the text breaks the statement.",
              .result = help::key_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads Tapi.",
              .example = "app.AD_FindDSNByPhoneEMail(\"0201%\")"}},
    {.id = 1656,
     .name = "AD_GetPhoneList",
     .kind = OperationKind::Method,
     .binding = bind<&Addresses::AD_GetPhoneList>,
     .parameters = row_parameters,
     .help = {.what = "The phone entries of the current row.",
              .result = "A new clsPhoneList.",
              .errors = row_errors,
              .example = "app.AD_GetPhoneList(rs).Phone1(1)"}},
    {.id = 1657,
     .name = "AD_SetPhoneList",
     .kind = OperationKind::Method,
     .binding = bind<&Addresses::AD_SetPhoneList>,
     .parameters = set_phone_list_parameters,
     .help = {.what = "Writes phone entries into the current row. Nothing is saved.",
              .errors = "91 \"Objektvariable nicht festgelegt\" without a list; the record set's "
                        "error without a current row.",
              .example = "app.AD_SetPhoneList(rs, phones)"}},
    {.id = 1658,
     .name = "AD_GetDetails",
     .kind = OperationKind::Method,
     .binding = bind<&Addresses::AD_GetDetails>,
     .parameters = details_parameters,
     .help = {.what = "The detail sheets of an address with one entry mask, ordered by key.",
              .result = help::record_set_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads Details.",
              .example = "app.AD_GetDetails(ad, emsk)[\"Oberbegriff\"]"}},
    {.id = 1659,
     .name = "AD_GetDetailsDsn",
     .kind = OperationKind::Method,
     .binding = bind<&Addresses::AD_GetDetailsDsn>,
     .parameters = details_parameters,
     .help = {.what = "The key of the first detail sheet that AD_GetDetails finds.",
              .result = help::key_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads Details.",
              .example = "app.AD_GetDetailsDsn(ad, emsk)"}},
    {.id = 1660,
     .name = "AD_GetStdBriefAnrede",
     .kind = OperationKind::Method,
     .binding = bind<&Addresses::AD_GetStdBriefAnrede>,
     .parameters = {},
     .help = {.what = "The letter form of the first salutation, with its name tags. Read once and "
                      "kept, unless it is empty.",
              .result = "The opening line of a letter.",
              .errors = help::session_and_host_errors,
              .tables = "Reads Std (ANREDE).",
              .example = "app.AD_GetStdBriefAnrede()"}},
};

}  // namespace

std::span<const Operation> Addresses::operations() noexcept {
    return rows;
}

}  // namespace cvdeveloper
