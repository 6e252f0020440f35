#include "host/session/users.h"

#include <sodium.h>

#include <array>

#include "host/database/date_text.h"
#include "host/errors.h"
#include "host/keys.h"
#include "platform/clock.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

// Argon2id with the passes of an interactive log-on, and memory that keeps it near 50 ms on a
// small office machine.
constexpr unsigned long long passes = crypto_pwhash_OPSLIMIT_INTERACTIVE;
constexpr std::size_t memory = std::size_t{32} * 1024 * 1024;

// The hash of a text that nobody uses: checking it makes an unknown user cost the time of a known
// one.
constexpr const char* nobodys_hash =
    "$argon2id$v=19$m=32768,t=2,p=1$H+MoxdycwdM0eOqQxlgigQ"
    "$LBLEjB2hsUfGshupHtWZJteq+bMteOi1j2azR9dBJ4I";

constexpr std::size_t longest_name = 50;  // UTF-16 code units, as the column takes them

void require_sodium() {
    if (sodium_init() < 0) {
        raise(HostError::LogonFailed, "Die Verschlüsselung steht nicht zur Verfügung.");
    }
}

std::string hash_of(std::string_view password) {
    require_sodium();
    const std::string capitals = upper_case(password);
    std::array<char, crypto_pwhash_STRBYTES> hash{};
    if (crypto_pwhash_str(hash.data(), capitals.data(), capitals.size(), passes, memory) != 0) {
        throw std::bad_alloc();
    }
    return hash.data();
}

std::string text_of(const Cell& cell) {
    return std::string(cell.is_null() ? std::string_view() : cell.text());
}

bool is_one(const Cell& cell) {
    return !cell.is_null() && cell.integer == 1;
}

}  // namespace

bool is_password_of(const std::optional<User>& user, std::string_view password) {
    require_sodium();
    const std::string capitals = upper_case(password);
    const bool has_password = user && !user->password_hash.empty();
    const char* const hash = has_password ? user->password_hash.c_str() : nobodys_hash;
    return crypto_pwhash_str_verify(hash, capitals.data(), capitals.size()) == 0 && has_password;
}

std::vector<User> Users::query(std::string_view condition, std::span<const Value> values) {
    std::string statement =
        "SELECT u.DSN, u.Login_Name, u.Name, u.AKTIV, u.Chef, p.hash FROM Benutzer AS u "
        "LEFT JOIN cv_password AS p ON p.Benutzer_DSN = u.DSN WHERE ";
    Rows found(6);
    database_.prepare(statement.append(condition), Author::Host)->query(values, found);
    std::vector<User> users;
    for (std::size_t i = 0; i < found.size(); ++i) {
        const auto row = found[i];
        users.push_back({.key = text_of(row[0]),
                         .login_name = text_of(row[1]),
                         .name = text_of(row[2]),
                         .is_active = is_one(row[3]),
                         .is_administrator = is_one(row[4]),
                         .password_hash = text_of(row[5])});
    }
    return users;
}

// Scripts may have made two users of one name: the one with a password is meant.
std::optional<User> Users::find(std::string_view login_name) {
    const Value name = login_name;
    std::vector<User> users =
        query("u.Login_Name=? ORDER BY p.hash IS NULL, u.DSN LIMIT 1", {&name, 1});
    return users.empty() ? std::nullopt : std::optional(std::move(users.front()));
}

std::vector<User> Users::all() {
    return query("u.Login_Name IS NOT NULL ORDER BY u.Login_Name, u.DSN", {});
}

void Users::add(std::string_view login_name, std::string_view password, bool is_administrator) {
    const std::string_view name = trim_blanks(login_name);
    if (name.empty() || name.size() != first_units(name, longest_name).size()) {
        raise(HostError::ValueRefused, "Ein Benutzername hat 1 bis 50 Zeichen.");
    }
    const std::string hash = hash_of(password);
    const std::string key = new_key();
    const auto insert = database_.prepare(
        "INSERT INTO Benutzer (DSN, Login_Name, Name, AKTIV, Chef, Rechteschablonen, FaxArt_Dsn, "
        "ScanArt_Dsn) SELECT ?1, ?2, ?2, 1, ?3, Rechteschablonen, FaxArt_Dsn, ScanArt_Dsn "
        "FROM Benutzer ORDER BY DSN LIMIT 1",
        Author::Host);
    database_.begin();
    try {
        if (find(name)) {
            raise(HostError::ValueRefused, "Den Benutzer " + in_quotes(name) + " gibt es schon.");
        }
        const Value values[] = {std::string_view(key), name, std::int64_t{is_administrator}};
        insert->execute(values);
        write_password(key, hash);
        database_.commit();
    } catch (...) {
        database_.rollback();
        throw;
    }
}

std::string Users::key_of(std::string_view login_name) {
    std::optional<User> user = find(login_name);
    if (!user) {
        raise(HostError::ValueRefused, "Einen Benutzer " +
                                           in_quotes(first_units(login_name, longest_name)) +
                                           " gibt es nicht.");
    }
    return std::move(user->key);
}

void Users::set_password(std::string_view login_name, std::string_view password) {
    const std::string user = key_of(login_name);
    write_password(user, hash_of(password));
    const Value key = std::string_view(user);
    database_.prepare("DELETE FROM cv_logon WHERE Benutzer_DSN=?", Author::Host)
        ->execute({&key, 1});
}

void Users::set_active(std::string_view login_name, bool is_active) {
    const std::string user = key_of(login_name);
    const Value values[] = {std::int64_t{is_active}, std::string_view(user)};
    // A record set that was read before must not take it back unnoticed.
    database_.prepare("UPDATE Benutzer SET AKTIV=?, STAMP=STAMP+1 WHERE DSN=?", Author::Host)
        ->execute(values);
}

void Users::write_password(std::string_view key, std::string_view hash) {
    const std::string changed = date_text(now()).value_or("");
    const Value values[] = {key, hash, std::string_view(changed)};
    database_
        .prepare(
            "INSERT OR REPLACE INTO cv_password (Benutzer_DSN, hash, changed) VALUES (?, ?, ?)",
            Author::Host)
        ->execute(values);
}

void Users::make_administrator(std::string_view name) {
    const Value value = name;
    const auto existing = database_.prepare(
        "UPDATE Benutzer SET AKTIV = 1, Chef = 1 WHERE Login_Name = ?", Author::Host);
    if (existing->execute({&value, 1}) > 0) {
        return;
    }
    const auto first = database_.prepare(
        "UPDATE Benutzer SET Login_Name = ?, AKTIV = 1, Chef = 1 "
        "WHERE DSN = (SELECT DSN FROM Benutzer ORDER BY DSN LIMIT 1)",
        Author::Host);
    first->execute({&value, 1});
}

}  // namespace cvdeveloper::standalone
