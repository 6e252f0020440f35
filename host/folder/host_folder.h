#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "host/database/database.h"
#include "host/folder/host_log.h"

namespace cvdeveloper::standalone {

namespace sqlite {
class Connection;
}

// The version of the schema that this program makes and understands.
inline constexpr int schema_version = 2;

// What corvanta.ini of a host folder says.
struct Settings {
    std::string database_file = "corvanta.db";
    // How long to wait for somebody else's transaction.
    std::chrono::seconds timeout{10};
    // How long a caller's statement may run; zero for as long as it likes.
    std::chrono::seconds statement_limit{60};
    Sync sync = Sync::EachCommit;
    // Human keys get leading zeros up to so many digits.
    int number_digits = 0;
    // Kilobytes at which corvanta.log begins anew; 0 for never.
    int log_size = 1000;
};

// A folder that holds everything of one office: corvanta.ini, corvanta.db, the pictures in
// pic.obj and the attachments.
class HostFolder {
  public:
    // Reads the settings and changes nothing. Errors: Folder or NoRights, one sentence that says
    // what is wrong.
    static HostFolder open(std::string_view path);

    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    [[nodiscard]] const Settings& settings() const noexcept { return settings_; }
    [[nodiscard]] std::filesystem::path database_path() const;

    // A database of an earlier version is brought up to this one, with a copy of it beforehand.
    // Errors: Folder for no database, one of another program or of a newer version; NoRights,
    // LockTimeout, Damaged, DiskFull.
    [[nodiscard]] std::unique_ptr<Database> open_database() const;
    // The same as it is, of whatever version up to this one.
    [[nodiscard]] std::unique_ptr<Database> open_database_unchanged() const;

    // What an administrator wants to know later: corvanta.log.
    [[nodiscard]] HostLog log() const;

  private:
    [[nodiscard]] std::unique_ptr<sqlite::Connection> connect() const;

    HostFolder(std::string path, Settings settings)
        : path_(std::move(path)), settings_(std::move(settings)) {}

    std::string path_;  // as given
    Settings settings_;
};

}  // namespace cvdeveloper::standalone
