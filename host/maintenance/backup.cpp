#include "host/maintenance/backup.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "host/attachments/attachment_folder.h"
#include "host/database/date_text.h"
#include "host/errors.h"
#include "host/folder/host_folder.h"
#include "host/folder/upgrade.h"
#include "host/maintenance/archive.h"
#include "host/maintenance/backup_parts.h"
#include "host/maintenance/stored_attachments.h"
#include "platform/clock.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone {

namespace {

namespace fs = std::filesystem;
namespace parts = backup_parts;

// The copy of the database that goes into the archive; goes at the end.
class DatabaseCopy {
  public:
    explicit DatabaseCopy(std::string path) : path_(std::move(path)) { remove(); }
    DatabaseCopy(const DatabaseCopy&) = delete;
    DatabaseCopy& operator=(const DatabaseCopy&) = delete;
    ~DatabaseCopy() { remove(); }

    [[nodiscard]] const std::string& path() const noexcept { return path_; }

  private:
    void remove() const noexcept {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }

    std::string path_;
};

std::vector<fs::path> pictures_of(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::recursive_directory_iterator entry(folder, error);
         !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        if (entry->is_regular_file(error)) {
            files.push_back(entry->path());
        }
    }
    return files;
}

// Nothing for a file that somebody has removed in between.
std::unique_ptr<OpenFile> open_if_there(const fs::path& path) {
    try {
        return std::make_unique<OpenFile>(path.string(), OpenFile::Mode::Read);
    } catch (const AutomationError& error) {
        if (error.number() == static_cast<std::int32_t>(RuntimeError::FileNotFound)) {
            return nullptr;
        }
        throw;
    }
}

class Backup {
  public:
    Backup(std::string_view folder, const std::string& file, const Progression& progress)
        : host_folder_(HostFolder::open(folder)),
          folder_(paths::to_system(folder)),
          file_(file),
          progress_(progress),
          attachments_(folder_ / "Anlagen") {}

    std::uint64_t write() {
        const std::unique_ptr<Database> database = host_folder_.open_database_unchanged();
        ArchiveWriter archive(file_);
        // From here on the content of all rows that the database has now stays where it is.
        const auto kept = attachments_.keep_everything();
        database->begin_reading();
        const std::vector<StoredAttachment> stored = stored_attachments(*database);
        const DatabaseCopy copy(file_ + ".db.neu");
        progress_("Datenbank", 0);
        database->copy_to(copy.path(),
                          [&](double share) { progress_("Datenbank", share * share_of_database); });
        write_parts(archive, *database, stored, copy.path());
        database->rollback();
        archive.finish();
        progress_("Anlagen", 1);
        return fs::file_size(file_);
    }

  private:
    static constexpr double share_of_database = 0.3;

    void write_parts(ArchiveWriter& archive, Database& database,
                     const std::vector<StoredAttachment>& stored, const std::string& copy) {
        const std::vector<fs::path> pictures = pictures_of(folder_ / "pic.obj");
        bytes_ = static_cast<double>(fs::file_size(copy)) + 1;
        for (const fs::path& picture : pictures) {
            std::error_code ignored;
            bytes_ += static_cast<double>(fs::file_size(picture, ignored));
        }
        for (const StoredAttachment& attachment : stored) {
            bytes_ += static_cast<double>(attachment.size);
        }
        archive.add_text(std::string(parts::first),
                         std::string(parts::mark) + "Zeit: " + date_text(now()).value_or("") +
                             "\nVersion der Datenbank: " + std::to_string(version_of(database)) +
                             "\n");
        add(archive, std::string(parts::settings), folder_ / "corvanta.ini", "Einstellungen");
        for (const fs::path& picture : pictures) {
            const std::string name = picture.lexically_relative(folder_ / "pic.obj").string();
            add(archive, std::string(parts::pictures) + name, picture, "Bilder");
        }
        add(archive, std::string(parts::database), copy, "Datenbank");
        for (const StoredAttachment& attachment : stored) {
            add_attachment(archive, attachment);
        }
        archive.add_text(std::string(parts::last), "Dateien: " + std::to_string(files_) + "\n");
    }

    void add(ArchiveWriter& archive, const std::string& name, const fs::path& path,
             std::string_view step) {
        if (const auto file = open_if_there(path)) {
            add_open_file(archive, name, *file, step);
        }
    }

    void add_attachment(ArchiveWriter& archive, const StoredAttachment& attachment) {
        try {
            OpenFile file = attachments_.read(attachment.stored_name);
            add_open_file(archive, std::string(parts::attachments) + attachment.stored_name, file,
                          "Anlagen");
        } catch (const AutomationError& error) {
            if (error.number() == static_cast<std::int32_t>(RuntimeError::FileNotFound)) {
                raise(HostError::Damaged, "Der Inhalt der Anlage " + in_quotes(attachment.key) +
                                              " fehlt; cvdev check sagt, was noch fehlt.");
            }
            throw;
        }
    }

    void add_open_file(ArchiveWriter& archive, const std::string& name, OpenFile& file,
                       std::string_view step) {
        archive.add_file(name, file, [&](std::uint64_t count) {
            done_ += static_cast<double>(count);
            progress_(step,
                      share_of_database + (1 - share_of_database) * std::min(done_ / bytes_, 1.0));
        });
        ++files_;
    }

    HostFolder host_folder_;
    fs::path folder_;
    std::string file_;
    const Progression& progress_;
    AttachmentFolder attachments_;
    double bytes_ = 0;
    double done_ = 0;
    std::size_t files_ = 0;
};

}  // namespace

std::uint64_t back_up(std::string_view folder, std::string_view file, const Progression& progress) {
    return Backup(folder, paths::to_system(file).string(), progress).write();
}

}  // namespace cvdeveloper::standalone
