#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"
#include "platform/text.h"

// What all entities do when a record is made.
namespace cvdeveloper {

// An unsaved row of the table with a new key.
RecordSet new_record(Session& session, std::string_view table);

// The same with a human key: the master data keep the next one of each table in a column named
// after it.
RecordSet new_coded_record(Session& session, std::string_view table);

// Saves a filled row with the user's standard rights. Returns its key.
std::string save_new_record(Session& session, RecordSet& rs);

// Gives a saved record the features that the user's new records get.
void add_standard_features(Session& session, std::string_view table, std::string_view key);

// Both: how a record comes into being once its columns are filled. Returns its key.
std::string create_record(Session& session, std::string_view table, RecordSet& rs);

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
