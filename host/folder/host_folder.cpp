#include "host/folder/host_folder.h"

#include <cerrno>
#include <charconv>
#include <fstream>
#include <iterator>
#include <string>

#include "host/database/sqlite/connection.h"
#include "host/errors.h"
#include "host/folder/ini_file.h"
#include "host/folder/upgrade.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

class SettingsReader {
  public:
    SettingsReader(std::string_view folder, std::string_view text)
        : folder_(folder), ini_(IniFile::parse(text)) {}

    [[nodiscard]] std::string text(std::string_view section, std::string_view key,
                                   std::string_view otherwise) const {
        return ini_.get(section, key, otherwise);
    }
    [[nodiscard]] int number(std::string_view section, std::string_view key, int otherwise) const {
        const std::string text = ini_.get(section, key, "");
        if (text.empty()) {
            return otherwise;
        }
        int number = 0;
        const char* const end = text.data() + text.size();
        const auto [rest, error] = std::from_chars(text.data(), end, number);
        if (error != std::errc() || rest != end || number < 0 || number > largest_number) {
            refuse(key, text, "eine Zahl von 0 bis " + std::to_string(largest_number));
        }
        return number;
    }
    void check_kind_of_database() const {
        const std::string text = ini_.get("Datenbank", "Art", "SQLite");
        if (!equal_ignoring_case(text, "SQLite")) {
            refuse("Art", text, "SQLite");
        }
    }
    [[nodiscard]] Sync sync() const {
        const std::string text = ini_.get("Datenbank", "Sicherheit", "voll");
        if (equal_ignoring_case(text, "voll")) {
            return Sync::EachCommit;
        }
        if (equal_ignoring_case(text, "schnell")) {
            return Sync::Checkpoints;
        }
        if (!equal_ignoring_case(text, "ohne")) {
            refuse("Sicherheit", text, "voll, schnell oder ohne");
        }
        return Sync::Never;
    }

  private:
    static constexpr int largest_number = 100'000;

    [[noreturn]] void refuse(std::string_view key, std::string_view text,
                             const std::string& possible) const {
        raise(HostError::Folder, "In der Datei corvanta.ini im Ordner " + in_quotes(folder_) +
                                     " steht bei " + std::string(key) + " " +
                                     in_quotes(first_units(text, 60)) + "; möglich ist " +
                                     possible + ".");
    }

    std::string_view folder_;
    IniFile ini_;
};

Settings read_settings(std::string_view folder, std::string_view text) {
    const SettingsReader ini(folder, text);
    const auto seconds = [&](std::string_view key, std::chrono::seconds otherwise) {
        return std::chrono::seconds(
            ini.number("Datenbank", key, static_cast<int>(otherwise.count())));
    };
    ini.check_kind_of_database();
    Settings settings;
    settings.database_file = ini.text("Datenbank", "Datei", settings.database_file);
    settings.timeout = seconds("Wartezeit", settings.timeout);
    settings.statement_limit = seconds("Laufzeit", settings.statement_limit);
    settings.sync = ini.sync();
    settings.number_digits = ini.number("Kennungen", "Stellen", settings.number_digits);
    settings.log_size = ini.number("Protokoll", "Umfang", settings.log_size);
    return settings;
}

// What a path leads to. Errors: NoRights where that must not be known.
std::filesystem::file_status status_of(const std::filesystem::path& file, const std::string& what) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(file, error);
    if (is_missing_right(error.value())) {
        raise_system_failure(error.value(), what);
    }
    return status;
}

}  // namespace

HostFolder HostFolder::open(std::string_view path) {
    const std::filesystem::path folder = paths::to_system(path);
    const std::string unreadable =
        "Die Datei corvanta.ini im Ordner " + in_quotes(path) + " kann nicht gelesen werden";
    if (!is_directory(status_of(folder, unreadable))) {
        raise(HostError::Folder, "Den Ordner " + in_quotes(path) + " gibt es nicht.");
    }
    if (!exists(status_of(folder / "corvanta.ini", unreadable))) {
        raise(HostError::Folder, "Der Ordner " + in_quotes(path) +
                                     " ist kein Corvanta-Ordner: die Datei corvanta.ini fehlt.");
    }
    std::ifstream file(folder / "corvanta.ini", std::ios::binary);
    if (!file) {
        raise_system_failure(errno, unreadable);
    }
    return {std::string(path),
            read_settings(path, std::string(std::istreambuf_iterator<char>(file), {}))};
}

std::filesystem::path HostFolder::database_path() const {
    return paths::to_system(path_) / paths::to_system(settings_.database_file);
}

std::unique_ptr<sqlite::Connection> HostFolder::connect() const {
    const std::filesystem::path file = database_path();
    if (!exists(status_of(file, "Die Datenbank " + in_quotes(paths::to_text(file)) +
                                    " kann nicht geöffnet werden"))) {
        raise(HostError::Folder, "Im Ordner " + in_quotes(path_) + " fehlt die Datenbank " +
                                     settings_.database_file + ".");
    }
    auto database = std::make_unique<sqlite::Connection>(
        paths::to_text(file), sqlite::OpenOptions{.timeout = settings_.timeout,
                                                  .statement_limit = settings_.statement_limit,
                                                  .sync = settings_.sync});
    if (database->catalog()->find("cv_password") == nullptr ||
        database->catalog()->find("Version") == nullptr) {
        raise(HostError::Folder, "Die Datei " + settings_.database_file + " im Ordner " +
                                     in_quotes(path_) + " ist keine Corvanta-Datenbank.");
    }
    if (version_of(*database) > schema_version) {
        raise(HostError::Folder,
              "Die Datenbank im Ordner " + in_quotes(path_) +
                  " stammt von einer neueren Version dieses Programms; bitte dieses Programm "
                  "aktualisieren.");
    }
    return database;
}

std::unique_ptr<Database> HostFolder::open_database_unchanged() const {
    return connect();
}

std::unique_ptr<Database> HostFolder::open_database() const {
    std::unique_ptr<sqlite::Connection> database = connect();
    if (version_of(*database) < schema_version) {
        upgrade(*database, database_path(), log());
        database->read_catalog();
    }
    database->use_write_ahead_log();
    return database;
}

HostLog HostFolder::log() const {
    constexpr std::uint64_t kilobyte = 1000;
    return {paths::to_system(path_) / "corvanta.log",
            static_cast<std::uint64_t>(settings_.log_size) * kilobyte};
}

}  // namespace cvdeveloper::standalone
