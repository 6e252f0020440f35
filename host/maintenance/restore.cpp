#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>

#include "host/errors.h"
#include "host/folder/host_folder.h"
#include "host/maintenance/archive.h"
#include "host/maintenance/backup.h"
#include "host/maintenance/backup_parts.h"
#include "host/maintenance/check.h"
#include "host/platform/open_file.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone {

namespace {

namespace fs = std::filesystem;
namespace parts = backup_parts;

// The work that check_folder does afterwards has the rest.
constexpr double share_of_reading = 0.6;

// The folder in the making, beside the one it becomes; goes unless it becomes that.
class UnfinishedFolder {
  public:
    explicit UnfinishedFolder(fs::path path) : path_(std::move(path)) {
        fs::remove_all(path_);
        fs::create_directory(path_);
        fs::permissions(path_, fs::perms::owner_all);
    }
    UnfinishedFolder(const UnfinishedFolder&) = delete;
    UnfinishedFolder& operator=(const UnfinishedFolder&) = delete;
    ~UnfinishedFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

    [[nodiscard]] const fs::path& path() const noexcept { return path_; }
    void become(const fs::path& folder) const {
        OpenFile(path_.string(), OpenFile::Mode::Folder).sync_file_system();
        fs::rename(path_, folder);
        sync_folder(folder.parent_path().string());
    }

  private:
    fs::path path_;
};

class Restoring {
  public:
    Restoring(std::string_view file, const fs::path& folder, const Progression& progress)
        : file_(file), archive_(file_), folder_(folder), progress_(progress) {
        bytes_ = static_cast<double>(fs::file_size(file_)) + 1;
    }

    void read_all() {
        if (!archive_.next() || archive_.name() != parts::first ||
            !archive_.text().starts_with(parts::mark)) {
            raise(HostError::Damaged,
                  "Die Datei " + in_quotes(file_) + " ist keine Sicherung eines Corvanta-Ordners.");
        }
        make_folder("pic.obj");
        make_folder("Anlagen");
        bool is_complete = false;
        while (archive_.next()) {
            if (archive_.name() == parts::last) {
                is_complete = archive_.text() == "Dateien: " + std::to_string(files_) + "\n";
            } else {
                take(archive_.name());
            }
        }
        if (!is_complete) {
            raise(HostError::Damaged, "Die Sicherung " + in_quotes(file_) + " ist unvollständig.");
        }
    }

  private:
    void make_folder(const fs::path& name) {
        fs::create_directories(folder_ / name);
        fs::permissions(folder_ / name, fs::perms::owner_all);
    }

    // Only what a backup holds, and nothing that leads out of the folder.
    void take(const std::string& name) {
        const fs::path path(name);
        const bool is_known = name == parts::settings || name == parts::database ||
                              name.starts_with(parts::pictures) ||
                              name.starts_with(parts::attachments);
        if (!is_known || !archive_.is_file() || path.lexically_normal() != path ||
            std::ranges::find(path, "..") != path.end()) {
            raise(HostError::Damaged, "Die Sicherung " + in_quotes(file_) + " enthält " +
                                          in_quotes(name) + ", was in keine gehört.");
        }
        if (path.parent_path() != path.parent_path().root_directory()) {
            make_folder(path.parent_path());
        }
        OpenFile to((folder_ / path).string(), OpenFile::Mode::CreateNew);
        archive_.extract(to, [this](std::uint64_t count) {
            done_ += static_cast<double>(count);
            progress_("Sicherung", share_of_reading * std::min(done_ / bytes_, 1.0));
        });
        ++files_;
    }

    std::string file_;
    ArchiveReader archive_;
    fs::path folder_;
    const Progression& progress_;
    double bytes_ = 0;
    double done_ = 0;
    std::size_t files_ = 0;
};

// The database gets the name that the settings give it.
void name_database(const fs::path& folder) {
    const fs::path wanted = HostFolder::open(folder.string()).database_path();
    if (wanted == folder / parts::database) {
        return;
    }
    if (wanted.parent_path() != folder) {
        raise(HostError::Folder,
              "Die Einstellungen der Sicherung nennen eine Datenbank außerhalb des Ordners: " +
                  in_quotes(wanted.string()) + ".");
    }
    fs::rename(folder / parts::database, wanted);
}

// A backup of an earlier version is brought up to this one.
void verify(const fs::path& folder, const std::string& file, const Progression& progress) {
    static_cast<void>(HostFolder::open(folder.string()).open_database());
    const CheckReport report =
        check_folder(folder.string(), [&](std::string_view step, double share) {
            progress(step, share_of_reading + (1 - share_of_reading) * share);
        });
    if (!report.problems.empty()) {
        raise(HostError::Damaged, "Die Sicherung " + in_quotes(file) +
                                      " ist nicht in Ordnung: " + report.problems.front());
    }
}

void restore_into(const std::string& file, const fs::path& folder, const Progression& progress) {
    std::error_code ignored;
    if (fs::exists(folder) && !fs::is_empty(folder, ignored)) {
        raise(HostError::Folder, "Den Ordner " + in_quotes(folder.string()) +
                                     " gibt es schon, und er ist nicht leer.");
    }
    fs::path unfinished = folder;
    unfinished += ".neu";
    const UnfinishedFolder made(unfinished);
    Restoring(file, made.path(), progress).read_all();
    name_database(made.path());
    verify(made.path(), file, progress);
    made.become(folder);
}

}  // namespace

void restore(std::string_view file, std::string_view folder, const Progression& progress) {
    try {
        fs::path target = fs::absolute(paths::to_system(folder)).lexically_normal();
        if (!target.has_filename()) {
            target = target.parent_path();  // "folder/" is the folder
        }
        restore_into(paths::to_system(file).string(), target, progress);
    } catch (const fs::filesystem_error& error) {
        raise_system_failure(error.code().value(),
                             "Der Ordner " + in_quotes(folder) + " kann nicht angelegt werden");
    }
}

}  // namespace cvdeveloper::standalone
