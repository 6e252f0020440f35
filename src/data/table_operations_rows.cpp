#include "cvdeveloper/data/table_operations.h"
#include "data/help_texts.h"

namespace cvdeveloper {

namespace {

constexpr Parameter table_parameter{.name = "strTable", .help = help::table_argument};
constexpr Parameter where_parameter{.name = "strWhere", .help = help::where_argument};
// Passed by reference in the interface and never changed.
constexpr Parameter key_parameter{
    .name = "strDsn", .help = help::key_argument, .direction = Direction::InOut};
constexpr Parameter field_parameter{.name = "strFieldName",
                                    .help = "column's name, inserted as it stands",
                                    .direction = Direction::InOut};
constexpr Parameter changed_parameter{.name = "rs",
                                      .help = "record set; what the host leaves there comes back",
                                      .direction = Direction::InOut};

constexpr Parameter find_parameters[] = {
    table_parameter,
    where_parameter,
    {.name = "strOderBy", .help = help::order_argument, .default_value = ""},
};
constexpr Parameter by_key_parameters[] = {
    table_parameter,
    {.name = "strDsn", .help = help::key_argument},
};
constexpr Parameter by_code_parameters[] = {
    table_parameter,
    {.name = "strKennung", .help = help::code_argument},
};
constexpr Parameter get_field_parameters[] = {table_parameter, key_parameter, field_parameter};
constexpr Parameter get_code_parameters[] = {
    table_parameter,
    key_parameter,
    {.name = "blnWithBlank", .help = "False takes every blank out", .default_value = true},
};
constexpr Parameter set_field_parameters[] = {
    table_parameter,
    key_parameter,
    field_parameter,
    {.name = "varValue", .help = "the new value"},
};
constexpr Parameter record_set_parameters[] = {changed_parameter};
constexpr Parameter delete_where_parameters[] = {table_parameter, where_parameter};
constexpr Parameter copy_parameters[] = {
    {.name = "rsSource", .help = "record set on the row to copy from"},
    {.name = "rsDest", .help = "record set on the row to copy to"},
    {.name = "strNegFieldList",
     .help = "upper-case names of fields to leave alone, each between bars",
     .default_value = "|DSN|KENNUNG|STAMP|"},
};

constexpr char named_table[] = "Reads strTable.";
constexpr char changed_table[] = "Reads and writes strTable.";

constexpr Operation rows[] = {
    {.id = 40,
     .name = "Sql_Find",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::Sql_Find>,
     .parameters = find_parameters,
     .help = {.what = "Finds the rows of a table that fit a condition, with all columns. The "
                      "condition \"1=2\" gives an empty record set, the start of a new row.",
              .result = help::record_set_result,
              .errors = help::session_and_host_errors,
              .tables = named_table,
              .example = "app.oBase.Sql_Find(\"AD\", \"Ort = 'Essen'\", \"Name\")"}},
    {.id = 41,
     .name = "Sql_GetDSN",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::Sql_GetDSN>,
     .parameters = find_parameters,
     .help = {.what = "The key of the first row that fits a condition.",
              .result = help::key_result,
              .errors = help::session_and_host_errors,
              .tables = named_table,
              .example = "app.oBase.Sql_GetDSN(\"OBJ\", \"Aktiv = 1\", \"Kennung\")"}},
    {.id = 42,
     .name = "Sql_FindByDSN",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::Sql_FindByDSN>,
     .parameters = by_key_parameters,
     .help = {.what = "Finds the row of a key.",
              .result = help::record_set_result,
              .errors = help::session_and_host_errors,
              .tables = named_table,
              .example = "app.oBase.Sql_FindByDSN(\"AKT\", dsn)"}},
    {.id = 43,
     .name = "Sql_FindByKennung",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::Sql_FindByKennung>,
     .parameters = by_code_parameters,
     .help = {.what = "Finds the rows of a human key, ordered by key. A quote inside it breaks "
                      "the statement.",
              .result = help::record_set_result,
              .errors = help::session_and_host_errors,
              .tables = named_table,
              .example = "app.oBase.Sql_FindByKennung(\"AD\", \"A-100001\")"}},
    {.id = 44,
     .name = "Sql_FindDsnByKennung",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::Sql_FindDsnByKennung>,
     .parameters = by_code_parameters,
     .help = {.what = "The key of a human key's row, the lowest where several carry it.",
              .result = help::key_result,
              .errors = help::session_and_host_errors,
              .tables = named_table,
              .example = "app.oBase.Sql_FindDsnByKennung(\"AD\", \"A-100001\")"}},
    {.id = 45,
     .name = "Sql_GetField",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::Sql_GetField, get_field_parameters>,
     .parameters = get_field_parameters,
     .help = {.what = "One field of one row as text.",
              .result = "The text; \"\" where there is no such row or the field is null.",
              .errors = help::session_and_host_errors,
              .tables = named_table,
              .example = "app.oBase.Sql_GetField(\"AKT\", dsn, \"Subject\")"}},
    {.id = 46,
     .name = "Sql_GetKennung",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::Sql_GetKennung, get_code_parameters>,
     .parameters = get_code_parameters,
     .help = {.what = "The human key of a record.",
              .result = "The human key; \"\" where there is no such row.",
              .errors = help::session_and_host_errors,
              .tables = named_table,
              .example = "app.oBase.Sql_GetKennung(\"AKT\", dsn, False)"}},
    {.id = 47,
     .name = "Sql_SetField",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::Sql_SetField, set_field_parameters>,
     .parameters = set_field_parameters,
     .help = {.what = "Writes one field of one row.",
              .result = "True if the row existed and was written.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; the "
                        "record set's error for an unknown field or a value it rejects.",
              .tables = changed_table,
              .example = "app.oBase.Sql_SetField(\"AKT\", dsn, \"Erledigt\", 1)"}},
    {.id = 48,
     .name = "SQL_Delete",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::SQL_Delete>,
     .parameters = record_set_parameters,
     .help = {.what = "Deletes the current row of a record set and writes that back.",
              .result = "True if there was a current row.",
              .errors = help::session_and_host_errors,
              .tables = "Writes the record set's table.",
              .example = "app.oBase.SQL_Delete(rs)"}},
    {.id = 49,
     .name = "SQL_DeleteAll",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::SQL_DeleteAll>,
     .parameters = record_set_parameters,
     .help = {.what = "Deletes every row of a record set that is not at its end, and writes that "
                      "back in one go.",
              .result = "True if the record set was not at its end.",
              .errors = help::session_and_host_errors,
              .tables = "Writes the record set's table.",
              .example = "app.oBase.SQL_DeleteAll(rs)"}},
    {.id = 50,
     .name = "SQL_DeleteWhere",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::SQL_DeleteWhere>,
     .parameters = delete_where_parameters,
     .help = {.what = "Deletes all rows of a table that fit a condition; an empty condition "
                      "deletes every row of the table.",
              .result = "The number of rows deleted.",
              .errors = help::session_and_host_errors,
              .tables = changed_table,
              .example = "app.oBase.SQL_DeleteWhere(\"Tapi\", \"Nummer = '0201 1'\")"}},
    {.id = 51,
     .name = "Sql_CopyFields",
     .kind = OperationKind::Method,
     .binding = bind<&TableOperations::Sql_CopyFields>,
     .parameters = copy_parameters,
     .help = {.what = "Copies the fields of one row to the fields of the same names in another. "
                      "Nothing is written to the database, nothing is moved.",
              .errors = "The record set's error for a field that the destination lacks.",
              .example = "app.oBase.Sql_CopyFields(source, copy)"}},
};

}  // namespace

std::span<const Operation> TableOperations::operations() noexcept {
    return rows;
}

}  // namespace cvdeveloper
