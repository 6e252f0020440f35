#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/database/database.h"

namespace cvdeveloper::standalone {

struct User {
    std::string key;
    std::string login_name;
    std::string name;
    bool is_active = false;
    bool is_administrator = false;
    std::string password_hash;  // "" where there is none
};

// Whether a password is the user's. Passwords count without regard to case: they arrive in
// capitals. Takes the same time where there is no user, or one without a password.
bool is_password_of(const std::optional<User>& user, std::string_view password);

// The users and their passwords: salted hashes in a table of their own, which no caller's
// statement may read.
class Users {
  public:
    explicit Users(Database& database) noexcept : database_(database) {}

    [[nodiscard]] std::optional<User> find(std::string_view login_name);
    // By login names.
    [[nodiscard]] std::vector<User> all();

    // An active user with the access templates of the office's first one. Errors: ValueRefused for
    // no name, one too long, or one that somebody has.
    void add(std::string_view login_name, std::string_view password, bool is_administrator);

    // Failed log-ons are forgotten. Errors: ValueRefused for an unknown user.
    void set_password(std::string_view login_name, std::string_view password);

    // Whether the user may log on; who is logged on works on. Errors: ValueRefused for an unknown
    // user.
    void set_active(std::string_view login_name, bool is_active);

    // Makes the user of that name an active administrator; where there is none of that name, the
    // new database's first user takes it.
    void make_administrator(std::string_view name);

  private:
    [[nodiscard]] std::vector<User> query(std::string_view condition,
                                          std::span<const Value> values);
    // Errors: ValueRefused for an unknown user.
    [[nodiscard]] std::string key_of(std::string_view login_name);
    void write_password(std::string_view key, std::string_view hash);

    Database& database_;
};

}  // namespace cvdeveloper::standalone
