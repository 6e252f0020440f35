#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

// What the catalogues (features, field kinds, options, entry masks) have in common.
namespace cvdeveloper {

// An unsaved row of the catalogue with a new key.
RecordSet new_entry(Session& session, std::string_view table);
// The same, in use.
RecordSet new_active_entry(Session& session, std::string_view table);

// Makes the entry available for the main tables of a comma list: each has a column of its own. An
// item that names no column is the record set's error.
void offer_to_tables(const RecordSet& rs, std::string_view tables);

// Saves the entry and gives back its key.
std::string saved_key(Session& session, RecordSet& rs);

}  // namespace cvdeveloper
