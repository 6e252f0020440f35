#include "cvdeveloper/entities/master_data.h"

#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "data/help_texts.h"

namespace cvdeveloper {

namespace {

constexpr Parameter field_parameters[] = {
    {.name = "strFieldName", .help = "column or expression, inserted as it stands"},
};

constexpr Operation rows[] = {
    {.id = 2300,
     .name = "STD_Find",
     .kind = OperationKind::Method,
     .binding = bind<&MasterData::STD_Find>,
     .parameters = {},
     .help = {.what = "The whole master-data table.",
              .result = "A record set of one row, as a rule.",
              .errors = help::session_and_host_errors,
              .tables = "Reads Std.",
              .example = "app.STD_Find()[\"Firma\"]"}},
    {.id = 2301,
     .name = "STD_GetField",
     .kind = OperationKind::Method,
     .binding = bind<&MasterData::STD_GetField>,
     .parameters = field_parameters,
     .help = {.what = "One master-data value as text, asked of the database each time. Asking for "
                      "a Kennung_* column takes the next number for that table.",
              .result = "The text; \"\" for null or an empty table.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; the "
                        "database's error for an unknown column.",
              .tables = "Reads Std.",
              .example = "app.STD_GetField(\"TITEL\")"}},
    {.id = 2302,
     .name = "STD_GetSalutationList",
     .kind = OperationKind::Method,
     .binding = bind<&MasterData::STD_GetSalutationList>,
     .parameters = {},
     .help = {.what = "The installation's salutations.",
              .result = "A new clsSalutationList, empty where there are none.",
              .errors = help::session_and_host_errors,
              .tables = "Reads Std (ANREDE).",
              .example = "app.STD_GetSalutationList().Count"}},
};

}  // namespace

std::span<const Operation> MasterData::operations() noexcept {
    return rows;
}

RecordSet MasterData::STD_Find() const {
    return TableOperations(session()).Sql_Find("Std", "", "");
}

std::string MasterData::STD_GetField(std::string_view strFieldName) const {
    const RecordSet rs =
        Gateway(session()).CV_GetRecordset("SELECT " + std::string(strFieldName) + " FROM Std");
    return rs.at_end() ? std::string() : session().text(rs.value(strFieldName));
}

Ref<clsSalutationList> MasterData::STD_GetSalutationList() const {
    auto list = make_object<clsSalutationList>();
    list->put_AsString(STD_GetField("ANREDE"));
    return list;
}

}  // namespace cvdeveloper
