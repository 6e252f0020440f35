#include "host/folder/host_folder.h"

#include <charconv>
#include <fstream>
#include <iterator>
#include <optional>

#include "host/database/sqlite/connection.h"
#include "host/errors.h"
#include "host/folder/ini_file.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

std::optional<std::string> read_file(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

int number_in(const std::string& text, int otherwise) {
    int number = otherwise;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number < 0 ? otherwise : number;
}

Settings read_settings(std::string_view text) {
    const IniFile ini = IniFile::parse(text);
    Settings settings;
    settings.database_file = ini.get("Datenbank", "Datei", settings.database_file);
    settings.timeout = std::chrono::seconds(number_in(ini.get("Datenbank", "Wartezeit", ""),
                                                      static_cast<int>(settings.timeout.count())));
    settings.full_sync =
        !equal_ignoring_case(ini.get("Datenbank", "Sicherheit", "voll"), "schnell");
    settings.number_digits = number_in(ini.get("Kennungen", "Stellen", ""), 0);
    return settings;
}

}  // namespace

HostFolder HostFolder::open(std::string_view path) {
    const std::filesystem::path folder = paths::to_system(path);
    std::error_code ignored;
    if (!std::filesystem::is_directory(folder, ignored)) {
        raise(HostError::Folder, "Den Ordner " + in_quotes(path) + " gibt es nicht.");
    }
    if (!std::filesystem::exists(folder / "corvanta.ini", ignored)) {
        raise(HostError::Folder, "Der Ordner " + in_quotes(path) +
                                     " ist kein Corvanta-Ordner: die Datei corvanta.ini fehlt.");
    }
    const auto text = read_file(folder / "corvanta.ini");
    if (!text) {
        raise(HostError::Folder, "Die Datei corvanta.ini im Ordner " + in_quotes(path) +
                                     " kann nicht gelesen werden.");
    }
    return {std::string(path), read_settings(*text)};
}

std::filesystem::path HostFolder::database_path() const {
    return paths::to_system(path_) / paths::to_system(settings_.database_file);
}

std::unique_ptr<Database> HostFolder::open_database() const {
    const std::filesystem::path file = database_path();
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored)) {
        raise(HostError::Folder, "Im Ordner " + in_quotes(path_) + " fehlt die Datenbank " +
                                     settings_.database_file + ".");
    }
    auto database = std::make_unique<sqlite::Connection>(
        paths::to_text(file),
        sqlite::OpenOptions{.timeout = settings_.timeout, .full_sync = settings_.full_sync});
    if (database->catalog()->find("cv_password") == nullptr ||
        database->catalog()->find("Version") == nullptr) {
        raise(HostError::Folder, "Die Datei " + settings_.database_file + " im Ordner " +
                                     in_quotes(path_) + " ist keine Corvanta-Datenbank.");
    }
    Rows version(1);
    database->prepare("SELECT max(Version) + 0.0 FROM Version", Author::Host)->query({}, version);
    if (!version[0][0].is_null() && version[0][0].number > schema_version) {
        raise(HostError::Folder,
              "Die Datenbank im Ordner " + in_quotes(path_) +
                  " stammt von einer neueren Version dieses Programms; bitte dieses Programm "
                  "aktualisieren.");
    }
    database->use_write_ahead_log();
    return database;
}

}  // namespace cvdeveloper::standalone
