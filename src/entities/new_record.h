#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"
#include "data/new_row.h"

// What all entities do when a record is made.
namespace cvdeveloper {

// An unsaved row with a new key and a human key: the master data keep the next one of each table in
// a column named after it.
RecordSet new_coded_record(Session& session, std::string_view table);

// Saves a filled row with the user's standard rights. Returns its key.
std::string save_new_record(Session& session, RecordSet& rs);

// Gives a saved record the features that the user's new records get.
void add_standard_features(Session& session, std::string_view table, std::string_view key);

// Both: how a record comes into being once its columns are filled. Returns its key.
std::string create_record(Session& session, std::string_view table, RecordSet& rs);

}  // namespace cvdeveloper
