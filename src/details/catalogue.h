#pragma once

#include <string_view>

#include "data/new_row.h"

// What the catalogues (features, field kinds, options, entry masks) have in common.
namespace cvdeveloper {

// An unsaved row of the catalogue with a new key, in use.
RecordSet new_active_entry(Session& session, std::string_view table);

// Makes the entry available for the main tables of a comma list: each has a column of its own. An
// item that names no column is the record set's error.
void offer_to_tables(const RecordSet& rs, std::string_view tables);

}  // namespace cvdeveloper
