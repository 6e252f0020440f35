#include "host/database/sqlite/functions.h"

#include <sqlite3.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "host/database/date_text.h"
#include "host/sql/text_order.h"
#include "platform/clock.h"
#include "platform/text.h"
#include "platform/utf8.h"

namespace cvdeveloper::standalone::sqlite {

namespace {

using Arguments = std::span<sqlite3_value*>;

std::string_view text_of(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

bool is_null(sqlite3_value* value) {
    return sqlite3_value_type(value) == SQLITE_NULL;
}

void give(sqlite3_context* context, std::string_view text) {
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

int compare(void*, int left_size, const void* left, int right_size, const void* right) {
    return sql::compare_texts(
        {static_cast<const char*>(left), static_cast<std::size_t>(left_size)},
        {static_cast<const char*>(right), static_cast<std::size_t>(right_size)});
}

void like(sqlite3_context* context, int count, sqlite3_value** values) {
    const Arguments arguments(values, static_cast<std::size_t>(count));
    if (is_null(arguments[0]) || is_null(arguments[1])) {
        return;
    }
    char32_t escape = 0;
    if (count == 3 && !is_null(arguments[2])) {
        const std::string_view text = text_of(arguments[2]);
        const auto character = text.empty() ? utf8::Character{} : utf8::decode(text, 0);
        if (text.empty() || character.length != text.size()) {
            sqlite3_result_error(context, "ESCAPE expression must be a single character", -1);
            return;
        }
        escape = character.code;
    }
    // LIKE hands over the pattern first.
    const bool found = sql::is_like(text_of(arguments[1]), text_of(arguments[0]), escape);
    sqlite3_result_int(context, found ? 1 : 0);
}

void right(sqlite3_context* context, int, sqlite3_value** values) {
    const Arguments arguments(values, 2);
    if (is_null(arguments[0]) || is_null(arguments[1])) {
        return;
    }
    const std::string_view text = text_of(arguments[0]);
    std::int64_t wanted = sqlite3_value_int64(arguments[1]);
    std::size_t begin = text.size();
    while (begin > 0 && wanted > 0) {
        --begin;
        // Bytes 10xxxxxx continue a character.
        wanted -= (static_cast<unsigned char>(text[begin]) & 0xC0U) != 0x80U ? 1 : 0;
    }
    give(context, text.substr(begin));
}

void left(sqlite3_context* context, int, sqlite3_value** values) {
    const Arguments arguments(values, 2);
    if (is_null(arguments[0]) || is_null(arguments[1])) {
        return;
    }
    const std::string_view text = text_of(arguments[0]);
    const std::int64_t wanted = sqlite3_value_int64(arguments[1]);
    give(context,
         text.substr(
             0, wanted <= 0 ? 0 : utf8::prefix_length(text, static_cast<std::size_t>(wanted))));
}

void upper(sqlite3_context* context, int, sqlite3_value** values) {
    if (!is_null(*values)) {
        give(context, upper_case(text_of(*values)));
    }
}

void lower(sqlite3_context* context, int, sqlite3_value** values) {
    if (!is_null(*values)) {
        give(context, lower_case(text_of(*values)));
    }
}

void len(sqlite3_context* context, int, sqlite3_value** values) {
    if (!is_null(*values)) {
        sqlite3_result_int64(context, static_cast<std::int64_t>(length_in_units(text_of(*values))));
    }
}

void concat(sqlite3_context* context, int count, sqlite3_value** values) {
    std::string text;
    for (sqlite3_value* value : Arguments(values, static_cast<std::size_t>(count))) {
        if (!is_null(value)) {
            text += text_of(value);
        }
    }
    give(context, text);
}

void now_text(sqlite3_context* context, int, sqlite3_value**) {
    give(context, date_text(now()).value_or(""));
}

struct Function {
    const char* name;
    int arguments;
    void (*run)(sqlite3_context*, int, sqlite3_value**);
    bool depends_on_arguments_only = true;
};

constexpr Function functions[] = {
    {"like", 2, like},   {"like", 3, like},      {"right", 2, right},         {"left", 2, left},
    {"upper", 1, upper}, {"ucase", 1, upper},    {"lower", 1, lower},         {"lcase", 1, lower},
    {"len", 1, len},     {"concat", -1, concat}, {"now", 0, now_text, false},
};

}  // namespace

void install_functions(sqlite3* connection) {
    sqlite3_create_collation_v2(connection, "CVTEXT", SQLITE_UTF8, nullptr, compare, nullptr);
    for (const Function& function : functions) {
        const int flags = SQLITE_UTF8 | SQLITE_INNOCUOUS |
                          (function.depends_on_arguments_only ? SQLITE_DETERMINISTIC : 0);
        sqlite3_create_function_v2(connection, function.name, function.arguments, flags, nullptr,
                                   function.run, nullptr, nullptr, nullptr);
    }
}

}  // namespace cvdeveloper::standalone::sqlite
