#include "host/session/log_on.h"

#include <functional>

#include "host/errors.h"
#include "host/session/logon_delay.h"
#include "host/session/users.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

// A name that nobody has may well be a password in the wrong place: it is not logged.
std::string logged_name(const std::optional<User>& user) {
    return user ? "von " + in_quotes(user->login_name) : "eines unbekannten Benutzers";
}

// Unknown names wait like known ones. They share some rows, so that made-up ones do not fill the
// table.
std::string delayed_as(const std::optional<User>& user, std::string_view name) {
    constexpr std::size_t shared_rows = 100;
    return user ? user->key
                : "?" + std::to_string(std::hash<std::string>()(upper_case(name)) % shared_rows);
}

std::string refusal(std::string_view name, const std::string& reason) {
    return "Die Anmeldung von " + in_quotes(first_units(name, 60)) +
           " ist fehlgeschlagen: " + reason;
}

}  // namespace

std::string check_logon(Database& database, const HostLog& log, std::string_view name,
                        std::string_view password) {
    const std::optional<User> user = Users(database).find(name);
    LogonDelay delay(database, delayed_as(user, name));
    if (!delay.wait_for_turn()) {
        log.note("Anmeldung " + logged_name(user) + " abgelehnt: zu viele Versuche zugleich");
        raise(HostError::LogonFailed,
              refusal(name,
                      "nach mehreren Fehlversuchen warten schon andere; bitte in einer halben "
                      "Minute noch einmal versuchen."));
    }
    if (!is_password_of(user, password)) {
        delay.note_failure();
        log.note("Anmeldung " + logged_name(user) + " abgelehnt" +
                 (user ? ": falsches Kennwort" : "") + ", Fehlversuch " +
                 std::to_string(delay.failures()));
        raise(HostError::LogonFailed, refusal(name, "Benutzer oder Kennwort stimmt nicht."));
    }
    delay.note_success();
    if (!user->is_active) {
        log.note("Anmeldung " + logged_name(user) + " abgelehnt: nicht aktiv");
        raise(HostError::LogonFailed,
              refusal(name, "der Benutzer ist nicht aktiv und darf sich nicht anmelden."));
    }
    return user->key;
}

}  // namespace cvdeveloper::standalone
