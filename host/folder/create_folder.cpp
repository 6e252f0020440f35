#include "host/folder/create_folder.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <vector>

#include "host/database/sqlite/connection.h"
#include "host/errors.h"
#include "host/folder/host_folder.h"
#include "host/folder/load_rows.h"
#include "host/folder/schema_folder.h"
#include "host/platform/open_file.h"
#include "host/session/users.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view default_ini =
    "; Einstellungen dieses Corvanta-Ordners\n"
    "\n"
    "[Datenbank]\n"
    "Art = SQLite\n"
    "Datei = corvanta.db\n"
    "; Sekunden, die auf einen anderen Benutzer gewartet wird\n"
    "Wartezeit = 10\n"
    "; Sekunden, nach denen eine lesende Anweisung abgebrochen wird; 0: nie\n"
    "Laufzeit = 60\n"
    "; voll: jede Änderung ist sofort auf dem Datenträger. schnell: bei Stromausfall können die\n"
    "; letzten Änderungen verloren gehen, die Datenbank selbst bleibt heil. ohne: bei "
    "Stromausfall\n"
    "; kann die ganze Datenbank beschädigt werden.\n"
    "Sicherheit = voll\n"
    "\n"
    "[Kennungen]\n"
    "; Mindestzahl der Ziffern, mit führenden Nullen\n"
    "Stellen = 0\n"
    "\n"
    "[Protokoll]\n"
    "; Kilobyte, nach denen corvanta.log neu beginnt; die vorige bleibt als corvanta.log.alt. "
    "0: nie\n"
    "Umfang = 1000\n";

// Takes back what was made, unless everything was.
class Undo {
  public:
    void remember(fs::path path) { made_.push_back(std::move(path)); }
    void keep() noexcept { made_.clear(); }
    Undo() = default;
    Undo(const Undo&) = delete;
    Undo& operator=(const Undo&) = delete;
    ~Undo() {
        for (auto path = made_.rbegin(); path != made_.rend(); ++path) {
            std::error_code ignored;
            fs::remove(*path, ignored);
        }
    }

  private:
    std::vector<fs::path> made_;
};

void make_folder(const fs::path& folder, Undo& undo) {
    if (fs::create_directory(folder)) {
        undo.remember(folder);
    }
    files::restrict_to_owner(paths::to_text(folder));
}

void fill_database(const fs::path& file, const CreateOptions& options) {
    // Syncing each step would only slow this down: the file gets its name when it is complete.
    sqlite::Connection database(paths::to_text(file), {.create = true, .sync = Sync::Never});
    files::restrict_to_owner(paths::to_text(file));
    const fs::path schema = schema_folder();
    database.begin();
    database.run_script(read_schema_file(schema / "schema.sql"));
    database.read_catalog();
    load_rows(database, schema / "base", nothing_to_tell);
    if (options.sample) {
        load_rows(database, schema / "sample",
                  [&](std::string_view table, double share) { options.progress(table, share); });
    }
    Users users(database);
    users.make_administrator(options.user);
    users.set_password(options.user, options.password);
    database.commit();
    database.use_write_ahead_log();
}

void make_all(std::string_view path, const CreateOptions& options) {
    const fs::path folder = paths::to_system(path);
    if (fs::exists(folder / "corvanta.db") || fs::exists(folder / "corvanta.ini")) {
        raise(HostError::Folder,
              "Der Ordner '" + std::string(path) + "' enthält schon eine Datenbank.");
    }
    Undo undo;
    make_folder(folder, undo);
    make_folder(folder / "pic.obj", undo);
    make_folder(folder / "Anlagen", undo);
    const fs::path unfinished = folder / "corvanta.db.neu";
    for (const char* part : {"", "-wal", "-shm", "-journal"}) {
        undo.remember(fs::path(unfinished) += part);
    }
    fill_database(unfinished, options);
    const fs::path ini = folder / "corvanta.ini";
    undo.remember(ini);
    std::ofstream file(ini, std::ios::binary);
    file << default_ini;
    file.close();
    if (!file) {
        raise_system_failure(errno, "Die Datei corvanta.ini im Ordner " + in_quotes(path) +
                                        " kann nicht geschrieben werden");
    }
    files::restrict_to_owner(paths::to_text(ini));
    OpenFile(paths::to_text(unfinished), OpenFile::Mode::Append).sync();
    fs::rename(unfinished, folder / "corvanta.db");
    sync_folder(paths::to_text(folder));
    undo.keep();
}

}  // namespace

void create_folder(std::string_view path, const CreateOptions& options) {
    try {
        make_all(path, options);
    } catch (const fs::filesystem_error& error) {
        raise_system_failure(error.code().value(),
                             "Der Ordner " + in_quotes(path) + " kann nicht angelegt werden");
    }
}

}  // namespace cvdeveloper::standalone
