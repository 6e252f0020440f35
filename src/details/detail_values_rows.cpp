#include "cvdeveloper/details/detail_values.h"
#include "data/help_texts.h"

namespace cvdeveloper {

namespace {

constexpr Parameter table_parameter{.name = "strTable", .help = "main table's name"};
constexpr Parameter key_parameter{.name = "strTableDsn", .help = help::key_argument};
constexpr Parameter kind_parameter{.name = "strFldArtDsn", .help = "the field kind's key"};
constexpr Parameter acl_parameter{.name = "strAcl",
                                  .help = "access-control string; \"[NOTHING]\" leaves it as it is",
                                  .default_value = "[NOTHING]"};
constexpr Parameter link_parameter{
    .name = "strLinkDsn",
    .help = "key of a record that the value refers to; \"[NOTHING]\" leaves it as it is",
    .default_value = "[NOTHING]"};
// Passed by reference in the interface and never changed.
constexpr Parameter value_parameter{.name = "strValue",
                                    .help = "the value; kept with its first 100 characters",
                                    .direction = Direction::InOut};

constexpr Parameter place_parameters[] = {table_parameter, key_parameter, kind_parameter};
constexpr Parameter numbers_parameters[] = {
    table_parameter,
    key_parameter,
    kind_parameter,
    {.name = "lngVonNum",
     .help = "takes the lower bound; stays as it is where there is no row",
     .direction = Direction::InOut},
    {.name = "lngBisNum",
     .help = "takes the upper bound; stays as it is where there is no row",
     .direction = Direction::InOut},
};
constexpr Parameter set_parameters[] = {
    table_parameter, key_parameter, kind_parameter, value_parameter, acl_parameter, link_parameter,
};
constexpr Parameter set_with_mask_parameters[] = {
    table_parameter,
    key_parameter,
    kind_parameter,
    value_parameter,
    {.name = "strEmskDsn",
     .help = "key of the entry mask that gives the access-control string; \"\" leaves it as it is",
     .default_value = ""},
    link_parameter,
};
constexpr Parameter copy_parameters[] = {
    table_parameter,
    {.name = "strSourceDsn", .help = "key of the record to copy from"},
    {.name = "strDestDsn", .help = "key of the record to copy to"},
};
constexpr Parameter option_parameters[] = {
    table_parameter, key_parameter,
    kind_parameter,  {.name = "strValue", .help = "the option's key; \"\" does nothing"},
    acl_parameter,
};

constexpr char reads[] = "Reads strTable and strTable + DET.";
constexpr char writes[] = "Reads strTable, reads and writes strTable + DET.";

constexpr Operation rows[] = {
    {.id = 90,
     .name = "Det_GetValue",
     .kind = OperationKind::Method,
     .binding = bind<&DetailValues::Det_GetValue>,
     .parameters = place_parameters,
     .help = {.what = "The detail value of one field kind of a record as text.",
              .result = "The text; \"\" where there is none.",
              .errors = help::session_and_host_errors,
              .tables = reads,
              .example = "app.oBase.Det_GetValue(\"AKT\", akt, fldart)"}},
    {.id = 91,
     .name = "Det_GetNumValue",
     .kind = OperationKind::Method,
     .binding = bind<&DetailValues::Det_GetNumValue>,
     .parameters = numbers_parameters,
     .help = {.what = "The numeric range of one field kind of a record.",
              .result = "True if there was a row.",
              .errors = help::session_and_host_errors,
              .tables = reads,
              .example = "app.oBase.Det_GetNumValue(\"AKT\", akt, fldart, 0, 0)"}},
    {.id = 92,
     .name = "Det_SetValue",
     .kind = OperationKind::Method,
     .binding = bind<&DetailValues::Det_SetValue, set_parameters>,
     .parameters = set_parameters,
     .help = {.what = "Writes the detail value of one field kind as text: into the first such row "
                      "of the record, or into a new one. The text is not interpreted; ranges and "
                      "the option stay as they are.",
              .result = "True if the row was written; False where a key or the table is empty.",
              .errors = help::session_and_host_errors,
              .tables = writes,
              .example = "app.oBase.Det_SetValue(\"AKT\", akt, fldart, \"120 qm\")"}},
    {.id = 93,
     .name = "Det_Delete",
     .kind = OperationKind::Method,
     .binding = bind<&DetailValues::Det_Delete>,
     .parameters = place_parameters,
     .help = {.what = "Deletes all detail values of one field kind of a record.",
              .result = "True if there was one.",
              .errors = help::session_and_host_errors,
              .tables = writes,
              .example = "app.oBase.Det_Delete(\"AKT\", akt, fldart)"}},
    {.id = 94,
     .name = "Det_SetValueWithEMSK",
     .kind = OperationKind::Method,
     .binding = bind<&DetailValues::Det_SetValueWithEMSK, set_with_mask_parameters>,
     .parameters = set_with_mask_parameters,
     .help = {.what = "Writes a detail value as Det_SetValue does, with the access-control string "
                      "that an entry mask gives the field kind; one that the mask lacks gets an "
                      "empty string.",
              .result = "True if the row was written; False where a key or the table is empty.",
              .errors = help::session_and_host_errors,
              .tables = "Reads EmskDet and strTable, reads and writes strTable + DET.",
              .example = "app.oBase.Det_SetValueWithEMSK(\"AKT\", akt, fldart, \"120 qm\", emsk)"}},
    {.id = 95,
     .name = "Det_Copy",
     .kind = OperationKind::Method,
     .binding = bind<&DetailValues::Det_Copy>,
     .parameters = copy_parameters,
     .help = {.what = "Copies all detail values of one record to another of the same table, which "
                      "keeps those it has: copying twice doubles them. Made for activities: the "
                      "new owner is always written into the column Akt_Dsn.",
              .result = "The number of values copied.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; the "
                        "record set's error where the table has no column Akt_Dsn.",
              .tables = "Reads strTable, reads and writes strTable + Det.",
              .example = "app.oBase.Det_Copy(\"AKT\", source, copy)"}},
    {.id = 96,
     .name = "Det_GetOptionDsn",
     .kind = OperationKind::Method,
     .binding = bind<&DetailValues::Det_GetOptionDsn>,
     .parameters = place_parameters,
     .help = {.what = "The option that is the detail value of one field kind of a record.",
              .result = "A key of FldArtOp, or \"\".",
              .errors = help::session_and_host_errors,
              .tables = reads,
              .example = "app.oBase.Det_GetOptionDsn(\"AKT\", akt, fldart)"}},
    {.id = 97,
     .name = "Det_SetOptionDsn",
     .kind = OperationKind::Method,
     .binding = bind<&DetailValues::Det_SetOptionDsn>,
     .parameters = option_parameters,
     .help = {.what = "Makes an option the detail value of one field kind of a record. A text, a "
                      "range and a link that the first such row had are cleared. Deleting the "
                      "value is the way to clear an option.",
              .result = "True if the row was written; False where a key or the table is empty.",
              .errors = help::session_and_host_errors,
              .tables = writes,
              .example = "app.oBase.Det_SetOptionDsn(\"AKT\", akt, fldart, option)"}},
};

}  // namespace

std::span<const Operation> DetailValues::operations() noexcept {
    return rows;
}

}  // namespace cvdeveloper
