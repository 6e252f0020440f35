#include "user.h"

#include <array>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <memory>

#include "commands.h"
#include "host/folder/host_folder.h"
#include "host/session/users.h"
#include "options.h"
#include "platform/text.h"
#include "read_password.h"

namespace cvdev {

namespace {

using cvdeveloper::standalone::Database;
using cvdeveloper::standalone::HostFolder;
using cvdeveloper::standalone::User;
using cvdeveloper::standalone::Users;

std::string state_of(const User& user) {
    std::string state = user.is_active ? "aktiv" : "nicht aktiv";
    if (user.is_administrator) {
        state += ", Chef";
    }
    if (user.password_hash.empty()) {
        state += ", ohne Kennwort: kann sich nicht anmelden";
    }
    return state;
}

// Blanks up to a width in characters.
std::string padded(const std::string& text, std::size_t width) {
    const std::size_t length = cvdeveloper::length_in_units(text);
    return text + std::string(width > length ? width - length : 0, ' ');
}

int list(Words arguments) {
    const std::string folder = only_folder(read_options(arguments));
    const auto database = HostFolder::open(folder).open_database();
    for (const User& user : Users(*database).all()) {
        std::cout << padded(user.login_name, 20) << " " << padded(user.name, 30) << " "
                  << state_of(user) << "\n";
    }
    return EXIT_SUCCESS;
}

int add(Words arguments) {
    constexpr std::array<std::string_view, 1> flags{"--admin"};
    const Options options = read_options(arguments, flags);
    require_words(options, 2, "FOLDER and NAME are");
    const HostFolder folder = HostFolder::open(options.words[0]);
    const auto database = folder.open_database();
    Users(*database).add(options.words[1], read_new_password(), options.has("--admin"));
    folder.log().note("Benutzer '" + options.words[1] + "' angelegt");
    std::cout << "Der Benutzer '" << options.words[1] << "' ist angelegt.\n";
    return EXIT_SUCCESS;
}

int passwd(Words arguments) {
    const Options options = read_options(arguments);
    require_words(options, 2, "FOLDER and NAME are");
    const HostFolder folder = HostFolder::open(options.words[0]);
    const auto database = folder.open_database();
    Users(*database).set_password(options.words[1], read_new_password());
    folder.log().note("Kennwort von '" + options.words[1] + "' geändert");
    std::cout << "Das Kennwort von '" << options.words[1] << "' ist geändert.\n";
    return EXIT_SUCCESS;
}

// An inactive user keeps password and rows, and may not log on.
int set_active(Words arguments, bool is_active) {
    const Options options = read_options(arguments);
    require_words(options, 2, "FOLDER and NAME are");
    const HostFolder folder = HostFolder::open(options.words[0]);
    const auto database = folder.open_database();
    Users(*database).set_active(options.words[1], is_active);
    const std::string state = is_active ? "aktiv" : "nicht aktiv";
    folder.log().note("Benutzer '" + options.words[1] + "' ist jetzt " + state);
    std::cout << "Der Benutzer '" << options.words[1] << "' ist " << state << ".\n";
    return EXIT_SUCCESS;
}

}  // namespace

int user(Words arguments) {
    const std::string action = arguments.empty() ? "" : arguments.front();
    if (action == "list") {
        return list(arguments.subspan(1));
    }
    if (action == "add") {
        return add(arguments.subspan(1));
    }
    if (action == "passwd") {
        return passwd(arguments.subspan(1));
    }
    if (action == "activate" || action == "deactivate") {
        return set_active(arguments.subspan(1), action == "activate");
    }
    throw UsageError{"user needs list, add, passwd, activate or deactivate"};
}

}  // namespace cvdev
