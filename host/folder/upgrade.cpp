#include "host/folder/upgrade.h"

#include <string>
#include <vector>

#include "host/database/sqlite/connection.h"
#include "host/errors.h"
#include "host/folder/host_folder.h"
#include "host/folder/schema_folder.h"

namespace cvdeveloper::standalone {

namespace {

namespace fs = std::filesystem;

// What leads from a version to the next stands in the file named after the latter.
std::vector<std::string> steps_from(int version) {
    std::vector<std::string> steps;
    for (int next = version + 1; next <= schema_version; ++next) {
        steps.push_back(read_schema_file(schema_folder() / "upgrades" /
                                         ("version-" + std::to_string(next) + ".sql")));
    }
    return steps;
}

// A copy that is there already came from an attempt that broke off: it is kept, too.
fs::path free_name(fs::path file, int version) {
    file += ".version-" + std::to_string(version);
    fs::path name = file;
    for (int number = 2; fs::exists(name); ++number) {
        name = file;
        name += "-" + std::to_string(number);
    }
    return name;
}

}  // namespace

int version_of(Database& database) {
    Rows found(1);
    database.prepare("SELECT CAST(max(Version) AS INTEGER) FROM Version", Author::Host)
        ->query({}, found);
    return found[0][0].is_null() ? 0 : static_cast<int>(found[0][0].integer);
}

void upgrade(Database& database, const fs::path& file, const HostLog& log) {
    database.begin();
    try {
        const int before = version_of(database);
        if (before >= schema_version) {
            database.rollback();
            return;
        }
        const std::vector<std::string> steps = steps_from(before);
        const fs::path copy = free_name(file, before);
        // By a connection of its own: what is being written cannot be copied.
        sqlite::Connection(file.string(), {}).copy_to(copy.string(), [](double) {});
        for (const std::string& step : steps) {
            database.run_script(step);
        }
        const auto set = database.prepare("UPDATE Version SET Version=?", Author::Host);
        const Value version = std::int64_t{schema_version};
        set->execute({&version, 1});
        database.commit();
        log.note("Datenbank von Version " + std::to_string(before) + " auf Version " +
                 std::to_string(schema_version) +
                 " gebracht; Kopie davor: " + copy.filename().string());
    } catch (...) {
        database.rollback();
        throw;
    }
}

}  // namespace cvdeveloper::standalone
