#include "cvdeveloper/data/cross_table.h"

#include <vector>

#include "cvdeveloper/automation/error.h"
#include "data/help_texts.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

constexpr std::int32_t object_error = -2147221504;

constexpr Parameter parameters[] = {
    {.name = "strMainTable", .help = "main table's name"},
    {.name = "strTblFieldPipeList", .help = "columns of the main table, separated by \"|\""},
    {.name = "strDetailPipeList",
     .help = "detail columns, separated by \"|\", each as value[.column][=match[#matchvalue]]"},
    {.name = "strWhere", .help = "condition on the main table", .default_value = ""},
    {.name = "strOrderBy",
     .help = "order of the result, by t1.column or a detail column's name",
     .default_value = ""},
};

constexpr Operation rows[] = {
    {.id = 60,
     .name = "Sql_CrossTable",
     .kind = OperationKind::Method,
     .binding = bind<&CrossTable::Sql_CrossTable>,
     .parameters = parameters,
     .help = {.what = "Builds the statement that lists the rows of a main table with detail values "
                      "beside them, one column for each. \"Zimmer\" shows the entered text of the "
                      "field kind of that short name, \"Preis.Von_Num\" another detail column, "
                      "called Preis_Von_Num; \"Lage=Kürzel#LAGE1\" finds the field kind by another "
                      "column and value. Nothing is sent, quoted or checked; without a column of "
                      "the main table the statement is no valid one.",
              .result = "The statement, for CV_GetRecordset.",
              .errors = "-2147221504 \"Keine Feldart in strDetailPipeList angegeben\" where no "
                        "detail column is asked for.",
              .example = "app.oBase.Sql_CrossTable(\"OBJ\", \"Kennung|Intern\", "
                         "\"Zimmer|Preis.Von_Num\")"}},
};

// One detail column that is asked for.
struct Item {
    std::string column;
    std::string match_column = "Kürzel";
    std::string match_value;
    std::string alias;

    [[nodiscard]] bool shows_key() const {
        const std::string upper = upper_case(column);
        return upper == "DSN" || upper.ends_with("_DSN");
    }
};

Item parse(std::string_view text) {
    Item item;
    std::string rest(text);
    std::string left = take_first(rest, "=");
    const bool matches = text.find('=') != std::string_view::npos;
    const bool has_column = left.find('.') != std::string::npos;
    const std::string name = take_first(left, ".");
    item.column = has_column ? left : "Eingabe";
    item.match_value = name;
    if (matches) {
        const bool has_value = rest.find('#') != std::string::npos;
        item.match_column = take_first(rest, "#");
        if (has_value) {
            item.match_value = rest;
        }
    }
    item.alias = upper_case(item.column) == "EINGABE" ? name : name + "_" + item.column;
    return item;
}

std::vector<std::string> items_of(std::string_view pipe_list) {
    std::string list(pipe_list);
    std::vector<std::string> items;
    while (!list.empty()) {
        const std::string first = take_first(list, "|");
        if (const std::string_view item = trim_blanks(first); !item.empty()) {
            items.emplace_back(item);
        }
    }
    return items;
}

std::string without_first(std::string_view text, std::size_t count) {
    return std::string(trim_blanks(text.substr(count)));
}

std::string pivot_column(const Item& item) {
    const std::string shown =
        item.shows_key() ? "CAST(" + item.column + " AS CHAR(36))" : item.column;
    return ", MAX (CASE " + item.match_column + " WHEN '" + item.match_value + "' THEN " + shown +
           " END ) AS '" + item.alias + "'";
}

std::string condition(const Item& item) {
    const bool by_key = upper_case(item.match_column) == "FLDART_DSN";
    return std::string("OR ") + (by_key ? "§MainTbl§Det." : "FldArt.") + item.match_column + "='" +
           item.match_value + "' ";
}

// From the main table's columns to the detail rows; "§MainTbl§" stands for the main table.
constexpr std::string_view inner_columns =
    ", t2.Kürzel, t2.Eingabe, t2.Sortierung, t2.Von_Num, t2.Bis_Num, t2.Typ, t2.Bezeichnung, "
    "t2.Wert, t2.FldArt_Dsn, t2.FldArtOp_Dsn ";
constexpr std::string_view inner_tables =
    " FROM §MainTbl§ LEFT OUTER JOIN "
    "(SELECT FldArt.Kürzel, FldArt.Sortierung, FldArt.Typ, FldArtOp.Bezeichnung, FldArtOp.Wert, "
    "§MainTbl§Det.§MainTbl§_Dsn, §MainTbl§Det.Eingabe, §MainTbl§Det.Von_Num, "
    "§MainTbl§Det.Bis_Num, §MainTbl§Det.FldArt_Dsn, §MainTbl§Det.FldArtOp_Dsn "
    "FROM §MainTbl§ "
    "INNER JOIN §MainTbl§Det ON §MainTbl§.Dsn = §MainTbl§Det.§MainTbl§_Dsn "
    "INNER JOIN FldArt ON §MainTbl§Det.FldArt_Dsn = FldArt.Dsn "
    "LEFT OUTER JOIN FldArtOp ON §MainTbl§Det.FldArtOp_Dsn = FldArtOp.Dsn ";

}  // namespace

std::span<const Operation> CrossTable::operations() noexcept {
    return rows;
}

std::string CrossTable::Sql_CrossTable(std::string_view strMainTable,
                                       std::string_view strTblFieldPipeList,
                                       std::string_view strDetailPipeList,
                                       std::string_view strWhere,
                                       std::string_view strOrderBy) const {
    std::string columns;
    for (const std::string& column : items_of(strTblFieldPipeList)) {
        columns.append(", t1.").append(column);
    }
    std::string inner;
    std::string group;
    if (!columns.empty()) {
        inner =
            without_first(replace_all(columns, ", t1.", ", " + std::string(strMainTable) + "."), 1);
        inner.append(inner_columns).append(inner_tables);
        group = "GROUP BY " + without_first(columns, 1);
    }

    std::string conditions;
    std::string used_values;
    for (const std::string& text : items_of(strDetailPipeList)) {
        const Item item = parse(text);
        columns.append(pivot_column(item));
        const std::string value = "|" + item.match_value;
        if ((used_values + "|").find(value + "|") == std::string::npos) {
            used_values.append(value);
            conditions.append(condition(item));
        }
    }
    if (conditions.empty()) {
        throw AutomationError(object_error, "", "Keine Feldart in strDetailPipeList angegeben");
    }
    inner.append("WHERE (").append(without_first(conditions, 2)).append(") ");
    inner.append(") AS t2 on §MainTbl§.Dsn = t2.§MainTbl§_dsn ");

    std::string statement = "SELECT " + without_first(columns, 2) + " FROM Version ,  (SELECT " +
                            replace_all(inner, "§MainTbl§", strMainTable);
    if (!strWhere.empty()) {
        statement.append("WHERE (").append(strWhere).append(") ");
    }
    statement.append(") AS t1 ").append(group).append(" ");
    if (!strOrderBy.empty()) {
        statement.append("ORDER BY ").append(strOrderBy).append(" ");
    }
    return statement;
}

}  // namespace cvdeveloper
