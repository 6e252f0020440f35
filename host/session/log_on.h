#pragma once

#include <string>
#include <string_view>

#include "host/database/database.h"
#include "host/folder/host_log.h"

namespace cvdeveloper::standalone {

// The key of the user whose password it is. Failed log-ons are logged, without the password, and
// make that user's next ones wait.
// Errors: LogonFailed, in the same words and after the same time for an unknown user and a wrong
// password; in plain words for a user who may not log on and knows his password.
std::string check_logon(Database& database, const HostLog& log, std::string_view name,
                        std::string_view password);

}  // namespace cvdeveloper::standalone
