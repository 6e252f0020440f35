#include "host/maintenance/check.h"

#include <filesystem>
#include <unordered_set>

#include "cvdeveloper/automation/error.h"
#include "host/attachments/attachment_folder.h"
#include "host/errors.h"
#include "host/folder/host_folder.h"
#include "host/maintenance/check_database.h"
#include "host/maintenance/stored_attachments.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone {

namespace {

namespace fs = std::filesystem;

// The database's share of the work; attachments have the rest.
constexpr double share_of_structure = 0.3;
constexpr double share_of_database = 0.5;

void check_content(const AttachmentFolder& folder, const StoredAttachment& attachment,
                   Problems& problems) {
    const std::string which = "Die Anlage " + in_quotes(attachment.key);
    try {
        OpenFile file = folder.read(attachment.stored_name);
        const Content content = read_content(file);
        if (content.size != attachment.size) {
            problems.push_back(which + " hat " + std::to_string(content.size) + " statt " +
                               std::to_string(attachment.size) + " Bytes.");
        } else if (content.sha256 != attachment.sha256) {
            problems.push_back(which + " hat einen anderen Inhalt als den gespeicherten.");
        }
    } catch (const AutomationError& error) {
        problems.push_back(which + " kann nicht gelesen werden: " + error.description() + ".");
    }
}

// Others work meanwhile: whatever they replace or delete is not missing.
bool is_still_named(Database& database, const StoredAttachment& attachment) {
    Rows found(1);
    const Value values[] = {std::string_view(attachment.key),
                            std::string_view(attachment.stored_name)};
    database.prepare("SELECT 1 FROM Blob WHERE DSN=? AND strStoredName=?", Author::Host)
        ->query(values, found);
    return found.size() > 0;
}

void check_attachments(Database& database, const fs::path& path, CheckReport& report,
                       const Progression& progress) {
    AttachmentFolder folder(path);
    const std::vector<StoredAttachment> attachments = stored_attachments(database);
    double bytes = 1;
    for (const StoredAttachment& attachment : attachments) {
        bytes += static_cast<double>(attachment.size);
    }
    double done = 0;
    for (const StoredAttachment& attachment : attachments) {
        Problems found;
        check_content(folder, attachment, found);
        if (!found.empty() && is_still_named(database, attachment)) {
            report.problems.push_back(found.front());
        }
        done += static_cast<double>(attachment.size);
        progress("Anlagen", share_of_database + (1 - share_of_database) * done / bytes);
    }
    report.attachments = static_cast<std::int64_t>(attachments.size());
    // Somebody who stores at the moment has files without rows.
    if (!folder.hold_alone()) {
        return;
    }
    std::unordered_set<std::string> named;
    for (const StoredAttachment& attachment : stored_attachments(database)) {
        named.insert(attachment.stored_name);
    }
    for (const std::string& name : folder.names()) {
        if (!named.contains(name)) {
            report.problems.push_back("Zur Datei Anlagen/" + name +
                                      " gehört keine Anlage; die nächste Anmeldung entfernt sie.");
        }
    }
}

void check_rights(const fs::path& folder, const fs::path& database, Problems& problems) {
    const fs::path log = folder / "corvanta.log";
    std::vector<fs::path> files = {folder,
                                   folder / "corvanta.ini",
                                   log,
                                   HostLog::old_one_of(log),
                                   folder / "Anlagen",
                                   folder / "pic.obj"};
    for (const char* part : {"", "-wal", "-shm"}) {
        files.push_back(fs::path(database) += part);
    }
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().filename().string().find(".version-") != std::string::npos) {
            files.push_back(entry.path());
        }
    }
    constexpr fs::perms others = fs::perms::group_all | fs::perms::others_all;
    for (const fs::path& file : files) {
        std::error_code error;
        const fs::file_status status = fs::status(file, error);
        if (fs::exists(status) && (status.permissions() & others) != fs::perms::none) {
            problems.push_back(in_quotes(file.string()) +
                               " ist auch für andere als den Besitzer zugänglich.");
        }
    }
}

}  // namespace

CheckReport check_folder(std::string_view path, const Progression& progress) {
    CheckReport report;
    const HostFolder folder = HostFolder::open(path);
    try {
        progress("Datenbank", 0);
        const std::unique_ptr<Database> database = folder.open_database_unchanged();
        report.tables = database->catalog()->tables().size();
        check_structure(*database, report.problems);
        progress("Schema", share_of_structure);
        check_schema(*database, report.problems);
        progress("Datensätze", share_of_structure);
        report.rows = check_rows(*database, report.problems);
        check_counters(*database, report.problems);
        progress("Anlagen", share_of_database);
        check_attachments(*database, paths::to_system(path) / "Anlagen", report, progress);
    } catch (const AutomationError& error) {
        // A damaged database is what the check is for; anything else keeps it from checking.
        if (error.number() != static_cast<std::int32_t>(HostError::Damaged)) {
            throw;
        }
        report.problems.push_back(error.description());
    }
    check_rights(paths::to_system(path), folder.database_path(), report.problems);
    progress("Rechte", 1);
    return report;
}

}  // namespace cvdeveloper::standalone
