#include "host/database/sqlite/access.h"

#include <sqlite3.h>

#include <algorithm>
#include <string_view>

#include "host/sql/names.h"

namespace cvdeveloper::standalone::sqlite {

namespace {

// Everything a caller's statement may call. None of these reaches a file, loads code or makes
// values of a size that its arguments do not have.
constexpr std::string_view allowed_functions[] = {
    "abs",        "acos",         "asin",      "atan",      "atan2",        "avg",
    "ceil",       "ceiling",      "char",      "coalesce",  "concat",       "cos",
    "count",      "cume_dist",    "date",      "datetime",  "degrees",      "dense_rank",
    "exp",        "first_value",  "floor",     "glob",      "group_concat", "hex",
    "ifnull",     "iif",          "instr",     "julianday", "lag",          "last_value",
    "lcase",      "lead",         "left",      "len",       "length",       "like",
    "ln",         "log",          "log10",     "log2",      "lower",        "ltrim",
    "max",        "min",          "mod",       "now",       "nth_value",    "ntile",
    "nullif",     "percent_rank", "pi",        "pow",       "power",        "quote",
    "radians",    "random",       "rank",      "replace",   "right",        "round",
    "row_number", "rtrim",        "sign",      "sin",       "soundex",      "sqrt",
    "strftime",   "substr",       "substring", "sum",       "tan",          "time",
    "total",      "trim",         "trunc",     "typeof",    "ucase",        "unicode",
    "unixepoch",  "upper",
};
static_assert(std::ranges::is_sorted(allowed_functions));

// What concerns log-ons is nobody's to read.
constexpr std::string_view hidden_tables[] = {"cv_password", "cv_logon"};

bool may_read(const Catalog* catalog, std::string_view table, std::string_view column) {
    if (std::ranges::any_of(hidden_tables, [table](std::string_view hidden) {
            return sql::equal_names(table, hidden);
        })) {
        return false;
    }
    // A table that lends no column may also be a subquery with a name.
    return column.empty() ? !sql::equal_names(table.substr(0, 7), "sqlite_")
                          : catalog != nullptr && catalog->find(table) != nullptr;
}

int check(void* data, int action, const char* first, const char* second, const char*, const char*) {
    const Access& access = *static_cast<const Access*>(data);
    if (access.author == Author::Host) {
        return SQLITE_OK;
    }
    const std::string_view one = first == nullptr ? "" : first;
    const std::string_view two = second == nullptr ? "" : second;
    bool allowed = false;
    switch (action) {
        case SQLITE_SELECT:
        case SQLITE_RECURSIVE:
            allowed = true;
            break;
        case SQLITE_READ:
            allowed = may_read(access.catalog, one, two);
            break;
        case SQLITE_FUNCTION:
            allowed = std::ranges::any_of(allowed_functions, [two](std::string_view name) {
                return sql::equal_names(name, two);
            });
            break;
        default:
            break;
    }
    return allowed ? SQLITE_OK : SQLITE_DENY;
}

}  // namespace

void install_access_check(sqlite3* connection, const Access& access) {
    sqlite3_set_authorizer(connection, check, const_cast<Access*>(&access));
}

}  // namespace cvdeveloper::standalone::sqlite
