#include "host/session/users.h"

#include <sodium.h>

#include <array>

#include "host/database/date_text.h"
#include "host/errors.h"
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

bool matches(const std::string& hash, std::string_view password) {
    require_sodium();
    const std::string capitals = upper_case(password);
    return crypto_pwhash_str_verify(hash.c_str(), capitals.data(), capitals.size()) == 0;
}

}  // namespace

std::string Users::log_on(std::string_view name, std::string_view password) {
    const auto statement = database_.prepare(
        "SELECT u.DSN, u.AKTIV, p.hash FROM Benutzer AS u "
        "JOIN cv_password AS p ON p.Benutzer_DSN = u.DSN WHERE u.Login_Name = ? LIMIT 1",
        Author::Host);
    Rows found(3);
    const Value value = name;
    statement->query({&value, 1}, found);
    const bool known = found.size() > 0;
    const std::string hash(known ? found[0][2].text() : std::string_view(nobodys_hash));
    if (!matches(hash, password) || !known || found[0][1].integer != 1) {
        raise(HostError::LogonFailed, "Die Anmeldung von '" + std::string(first_units(name, 60)) +
                                          "' ist fehlgeschlagen: Benutzer oder Kennwort stimmt "
                                          "nicht.");
    }
    return std::string(found[0][0].text());
}

void Users::set_password(std::string_view name, std::string_view password) {
    const auto statement = database_.prepare(
        "INSERT OR REPLACE INTO cv_password (Benutzer_DSN, hash, changed) "
        "SELECT DSN, ?, ? FROM Benutzer WHERE Login_Name = ?",
        Author::Host);
    const std::string hash = hash_of(password);
    const std::string changed = date_text(now()).value_or("");
    const Value values[] = {std::string_view(hash), std::string_view(changed), name};
    if (statement->execute(values) == 0) {
        raise(HostError::LogonFailed,
              "Einen Benutzer '" + std::string(first_units(name, 60)) + "' gibt es nicht.");
    }
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
