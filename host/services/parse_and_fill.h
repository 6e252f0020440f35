#pragma once

#include <cstdint>
#include <string>

#include "host/session/host_session.h"

namespace cvdeveloper::standalone {

// Reads the text in Eingabe of each row of detail values as its field kind means it, into the
// bounds, the option's key or the address's key; does not save. Type 0 reads all rows, 1 to 7 only
// those of field kinds of that type. A row whose text cannot be read stays as it is.
// Gives a line for each such row: "Wohnfläche: ca. 100". On request it is shown as well.
// Errors: the record set's own, where it lacks a column of detail values.
std::string parse_and_fill(HostSession& session, const RecordSet& details, std::int16_t type,
                           bool show);

}  // namespace cvdeveloper::standalone
