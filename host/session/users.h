#pragma once

#include <string>
#include <string_view>

#include "host/database/database.h"

namespace cvdeveloper::standalone {

// The users' passwords: salted hashes in a table of their own, which no caller's statement may
// read. Passwords count without regard to case: they arrive in capitals.
class Users {
  public:
    explicit Users(Database& database) noexcept : database_(database) {}

    // The key of the user. Errors: LogonFailed, in the same words and after the same time for an
    // unknown user, one who may not log on, and a wrong password.
    std::string log_on(std::string_view name, std::string_view password);

    // Errors: LogonFailed for an unknown user.
    void set_password(std::string_view name, std::string_view password);

    // Makes the user of that name an active administrator; where there is none of that name, the
    // new database's first user takes it.
    void make_administrator(std::string_view name);

  private:
    Database& database_;
};

}  // namespace cvdeveloper::standalone
