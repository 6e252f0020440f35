#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "host/database/database.h"

namespace cvdeveloper::standalone {

// The version of the schema that this program makes and understands.
inline constexpr double schema_version = 1;

// What corvanta.ini of a host folder says.
struct Settings {
    std::string database_file = "corvanta.db";
    // How long to wait for somebody else's transaction.
    std::chrono::seconds timeout{10};
    // Every commit reaches the disk. Without it a power failure may cost the last changes.
    bool full_sync = true;
    // Human keys get leading zeros up to so many digits.
    int number_digits = 0;
};

// A folder that holds everything of one office: corvanta.ini, corvanta.db, the pictures in
// pic.obj and the attachments.
class HostFolder {
  public:
    // Reads the settings and changes nothing. Errors: Folder, one sentence that says what is
    // wrong.
    static HostFolder open(std::string_view path);

    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    [[nodiscard]] const Settings& settings() const noexcept { return settings_; }
    [[nodiscard]] std::filesystem::path database_path() const;

    // Errors: Folder for no database, one of another program or of a newer version; LockTimeout;
    // Database for a damaged one.
    [[nodiscard]] std::unique_ptr<Database> open_database() const;

  private:
    HostFolder(std::string path, Settings settings)
        : path_(std::move(path)), settings_(std::move(settings)) {}

    std::string path_;  // as given
    Settings settings_;
};

}  // namespace cvdeveloper::standalone
