#include "cvdeveloper/data/table_operations.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/data/gateway.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

std::string condition_tail(std::string_view where, std::string_view order = {}) {
    std::string tail;
    if (!trim_blanks(where).empty()) {
        tail.append(" WHERE ").append(where);
    }
    if (!trim_blanks(order).empty()) {
        tail.append(" ORDER BY ").append(order);
    }
    return tail;
}

std::string select(std::string_view columns, std::string_view table, std::string_view tail) {
    std::string statement("SELECT ");
    statement.append(columns).append(" FROM ").append(table).append(" ").append(tail);
    return statement;
}

std::string where_dsn(std::string_view literal) {
    return "WHERE dsn=" + std::string(literal) + " ";
}

// Human keys are compared as texts of at least so many characters.
std::string code_condition(std::string_view code) {
    constexpr std::size_t least_units = 10;
    std::string condition = "Kennung = '" + std::string(code);
    if (const std::size_t units = length_in_units(code); units < least_units) {
        condition.append(least_units - units, ' ');
    }
    return condition + "'";
}

// Deletes from the current row to the end and says how many; nothing is written back.
std::int32_t delete_to_end(const RecordSet& rs) {
    std::int32_t count = 0;
    while (!rs.at_end()) {
        rs.remove();
        rs.move_next();
        ++count;
    }
    return count;
}

}  // namespace

RecordSet TableOperations::Sql_Find(std::string_view strTable, std::string_view strWhere,
                                    std::string_view strOderBy) const {
    return Gateway(session()).CV_GetRecordset(
        select("*", strTable, condition_tail(strWhere, strOderBy)));
}

std::string TableOperations::Sql_GetDSN(std::string_view strTable, std::string_view strWhere,
                                        std::string_view strOderBy) const {
    const RecordSet rs = Gateway(session()).CV_GetRecordset(
        select("Dsn", strTable, condition_tail(strWhere, strOderBy)));
    return rs.at_end() ? std::string() : to_text(rs.value("Dsn"));
}

RecordSet TableOperations::Sql_FindByDSN(std::string_view strTable, std::string_view strDsn) const {
    return Sql_Find(strTable, "DSN = " + session().util().SqlUid(strDsn));
}

RecordSet TableOperations::Sql_FindByKennung(std::string_view strTable,
                                             std::string_view strKennung) const {
    return Sql_Find(strTable, code_condition(strKennung), "DSN");
}

std::string TableOperations::Sql_FindDsnByKennung(std::string_view strTable,
                                                  std::string_view strKennung) const {
    return Sql_GetDSN(strTable, code_condition(strKennung), "DSN");
}

std::string TableOperations::Sql_GetField(std::string_view strTable, std::string_view strDsn,
                                          std::string_view strFieldName) const {
    const RecordSet rs = Gateway(session()).CV_GetRecordset(
        select(strFieldName, strTable, where_dsn(session().util().SqlUid(strDsn))));
    return rs.at_end() ? std::string() : session().text(rs.value(strFieldName));
}

std::string TableOperations::Sql_GetKennung(std::string_view strTable, std::string_view strDsn,
                                            bool blnWithBlank) const {
    std::string code = Sql_GetField(strTable, strDsn, "Kennung");
    if (!blnWithBlank) {
        std::erase(code, ' ');
    }
    return code;
}

bool TableOperations::Sql_SetField(std::string_view strTable, std::string_view strDsn,
                                   std::string_view strFieldName, const Variant& varValue) const {
    const Gateway gateway(session());
    RecordSet rs =
        gateway.CV_GetRecordset(select("*", strTable, where_dsn(session().util().SqlUid(strDsn))));
    if (rs.at_end()) {
        return false;
    }
    rs.set(strFieldName, varValue);
    gateway.CV_UpdateRecordset(rs);
    return true;
}

bool TableOperations::SQL_Delete(RecordSet& rs) const {
    if (rs.at_end()) {
        return false;
    }
    rs.remove();
    Gateway(session()).CV_UpdateRecordset(rs);
    return true;
}

bool TableOperations::SQL_DeleteAll(RecordSet& rs) const {
    if (rs.at_end()) {
        return false;
    }
    try {
        rs.move_first();
    } catch (const AutomationError&) {
        // A forward-only record set stays where it stands: the rest is deleted.
    }
    delete_to_end(rs);
    Gateway(session()).CV_UpdateRecordset(rs);
    return true;
}

std::int32_t TableOperations::SQL_DeleteWhere(std::string_view strTable,
                                              std::string_view strWhere) const {
    const Gateway gateway(session());
    RecordSet rs = gateway.CV_GetRecordset(select("*", strTable, condition_tail(strWhere)));
    const std::int32_t count = delete_to_end(rs);
    gateway.CV_UpdateRecordset(rs);
    return count;
}

void TableOperations::Sql_CopyFields(const RecordSet& rsSource, const RecordSet& rsDest,
                                     std::string_view strNegFieldList) const {
    rsDest.copy_fields(rsSource, strNegFieldList);
}

}  // namespace cvdeveloper
