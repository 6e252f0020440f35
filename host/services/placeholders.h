#pragma once

#include <string>
#include <string_view>

#include "host/session/host_session.h"

namespace cvdeveloper::standalone {

// The value of a letter's placeholder, as text in the regional form: that of the record set's
// field of this name, else of the statement's; "" where neither has it. Record set and statement
// may be nothing. Errors: what the database says of the statement.
std::string placeholder_value(HostSession& session, const RecordSet& record, std::string_view name,
                              std::string_view statement);

}  // namespace cvdeveloper::standalone
