#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"
#include "platform/text.h"

// How a row is made, filled and saved, whatever its table.
namespace cvdeveloper {

// An unsaved row of the table with a new key.
RecordSet new_row(Session& session, std::string_view table);

// Saves the row and gives back its key.
std::string saved_key(Session& session, RecordSet& rs);

// Flags are stored as the integers 1 and 0.
inline Variant flag_value(bool flag) {
    return static_cast<std::int16_t>(flag ? 1 : 0);
}

// A date of exactly 0 was not given and is stored as null.
inline Variant date_or_null(Date date) {
    return date.days == 0 ? Variant(Null{}) : Variant(date);
}

// Texts are cut to their column without notice.
inline Variant cut_text(std::string_view text, std::size_t units) {
    return first_units(text, units);
}

}  // namespace cvdeveloper
