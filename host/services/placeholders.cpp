#include "host/services/placeholders.h"

#include <optional>

#include "cvdeveloper/automation/conversions.h"
#include "host/sql/names.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

std::string text_of(const Variant& value) {
    // Pictures have no place in a text.
    if (value.is<Null>() || value.is<Bytes>()) {
        return {};
    }
    std::string text = to_text(value);
    // Human keys are kept padded with blanks, which a sentence has no use for.
    text.resize(text.find_last_not_of(' ') + 1);
    return text;
}

// Nothing where the record set has no such field or no current row.
std::optional<std::string> field_text(const RecordSet& rs, std::string_view name) {
    if (!rs || rs.at_end()) {
        return std::nullopt;
    }
    for (std::int32_t i = 0; i < rs.field_count(); ++i) {
        if (sql::equal_names(rs.field_name(i), name)) {
            return text_of(rs.value_at(i));
        }
    }
    return std::nullopt;
}

}  // namespace

std::string placeholder_value(HostSession& session, const RecordSet& record, std::string_view name,
                              std::string_view statement) {
    if (auto text = field_text(record, name)) {
        return *std::move(text);
    }
    if (trim_blanks(statement).empty()) {
        return {};
    }
    return field_text(session.get_record_set(statement), name).value_or("");
}

}  // namespace cvdeveloper::standalone
