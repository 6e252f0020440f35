#include "host/folder/upgrade.h"

#include <cstdlib>
#include <fstream>
#include <set>
#include <thread>

#include "host/database/sqlite/connection.h"
#include "host/errors.h"
#include "host/folder/host_folder.h"
#include "host/folder/load_rows.h"
#include "host/folder/schema_folder.h"
#include "host/host_test.h"
#include "host/maintenance/backup.h"
#include "host/maintenance/check.h"
#include "host/session/users.h"

namespace cvdeveloper::standalone::testing {
namespace {

namespace fs = std::filesystem;

// Has the host take its schema from another folder for its lifetime.
class OtherSchema {
  public:
    explicit OtherSchema(const std::string& folder) {
        setenv("CVDEVELOPER_SCHEMA", folder.c_str(), 1);
    }
    OtherSchema(const OtherSchema&) = delete;
    OtherSchema& operator=(const OtherSchema&) = delete;
    ~OtherSchema() { unsetenv("CVDEVELOPER_SCHEMA"); }
};

class AFolderOfVersion1 : public ::testing::Test {
  protected:
    AFolderOfVersion1() {
        create_folder(path());
        const std::string hash = password_hash();
        fs::remove(path() + "/corvanta.db");
        sqlite::Connection database(path() + "/corvanta.db", {.create = true});
        database.begin();
        database.run_script(read_schema_file(fs::path(CVDEVELOPER_VERSION_1) / "schema.sql"));
        database.read_catalog();
        load_rows(database, fs::path(CVDEVELOPER_VERSION_1) / "base", nothing_to_tell);
        const Value value = std::string_view(hash);
        database
            .prepare("INSERT INTO cv_password (Benutzer_DSN, hash) SELECT DSN, ? FROM Benutzer",
                     Author::Host)
            ->execute({&value, 1});
        database.commit();
        database.use_write_ahead_log();
        fs::permissions(path() + "/corvanta.db", fs::perms::owner_read | fs::perms::owner_write);
    }
    [[nodiscard]] std::string password_hash() const {
        const auto database = HostFolder::open(path()).open_database();
        return Users(*database).find("chef").value().password_hash;
    }
    [[nodiscard]] std::string path() const { return folder.path("büro"); }
    [[nodiscard]] std::string copy() const { return path() + "/corvanta.db.version-1"; }
    [[nodiscard]] std::string log() const {
        std::ifstream file(path() + "/corvanta.log");
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static int version(const std::string& file) {
        sqlite::Connection database(file, {});
        return version_of(database);
    }

    TemporaryFolder folder;
};

// Every table, column and index with its declaration, without comments and the way it is set.
std::set<std::string> declarations(const std::string& file) {
    sqlite::Connection database(file, {});
    Rows rows(1);
    database
        .prepare(
            "SELECT t.name || '.' || c.name || ' ' || c.type || ' ' || c.\"notnull\" || ' ' || "
            "ifnull(c.dflt_value, '') || ' ' || c.pk FROM sqlite_schema AS t "
            "JOIN pragma_table_info(t.name) AS c WHERE t.type='table' "
            "UNION ALL SELECT i.name || ' ' || i.sql FROM sqlite_schema AS i "
            "WHERE i.type='index' AND i.sql IS NOT NULL",
            Author::Host)
        ->query({}, rows);
    std::set<std::string> all;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        all.emplace(rows[i][0].text());
    }
    return all;
}

TEST_F(AFolderOfVersion1, IsBroughtUpToDateByTheNextLogon) {
    ASSERT_EQ(version(path() + "/corvanta.db"), 1);
    Connector connector;
    connector.Logon(path(), "chef", "");
    EXPECT_EQ(version(path() + "/corvanta.db"), schema_version);
    EXPECT_NE(log().find("Datenbank von Version 1 auf Version " + std::to_string(schema_version) +
                         " gebracht; Kopie davor: corvanta.db.version-1"),
              std::string::npos);
    EXPECT_TRUE(check_folder(path(), nothing_to_tell).problems.empty());
}

TEST_F(AFolderOfVersion1, GetsTheSchemaOfANewFolder) {
    Connector().Logon(path(), "chef", "");
    create_folder(folder.path("neu"));
    EXPECT_EQ(declarations(path() + "/corvanta.db"), declarations(folder.path("neu/corvanta.db")));
}

TEST_F(AFolderOfVersion1, IsCopiedBeforehandForItsOwnerAlone) {
    Connector().Logon(path(), "chef", "");
    EXPECT_EQ(version(copy()), 1);
    EXPECT_EQ(fs::status(copy()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(AFolderOfVersion1, IsUpgradedOnceByManyAtTheSameTime) {
    std::vector<std::thread> users;
    for (int i = 0; i < 4; ++i) {
        users.emplace_back([this] { Connector().Logon(path(), "chef", ""); });
    }
    for (std::thread& user : users) {
        user.join();
    }
    EXPECT_EQ(version(path() + "/corvanta.db"), schema_version);
    EXPECT_FALSE(fs::exists(copy() + "-2"));
}

TEST_F(AFolderOfVersion1, IsRestoredFromItsBackupInThisVersion) {
    back_up(path(), folder.path("sicherung.tar"), nothing_to_tell);
    EXPECT_EQ(version(path() + "/corvanta.db"), 1);
    restore(folder.path("sicherung.tar"), folder.path("wieder"), nothing_to_tell);
    EXPECT_EQ(version(folder.path("wieder/corvanta.db")), schema_version);
    Connector().Logon(folder.path("wieder"), "chef", "");
}

TEST_F(AFolderOfVersion1, StaysAsItIsWhereAStepFails) {
    const std::string broken = folder.path("schema");
    fs::create_directories(broken + "/upgrades");
    std::ofstream(broken + "/upgrades/version-2.sql")
        << "CREATE TABLE cv_logon (x); CREATE TABLE AKT (x);";
    const auto before = declarations(path() + "/corvanta.db");
    {
        const OtherSchema schema(broken);
        const AutomationError error = error_of([&] { Connector().Logon(path(), "chef", ""); });
        EXPECT_EQ(error.description(), "Die Datenbank lehnt ab: table AKT already exists.");
    }
    EXPECT_EQ(declarations(path() + "/corvanta.db"), before);
    EXPECT_EQ(version(path() + "/corvanta.db"), 1);
    Connector().Logon(path(), "chef", "");
    EXPECT_EQ(version(copy()), 1);
    EXPECT_EQ(version(copy() + "-2"), 1);
}

TEST_F(AFolderOfVersion1, StaysAsItIsWhereAStepsFileIsMissing) {
    {
        const OtherSchema schema(CVDEVELOPER_VERSION_1);
        EXPECT_EQ(error_of([&] { Connector().Logon(path(), "chef", ""); }).number(),
                  static_cast<std::int32_t>(HostError::Folder));
    }
    EXPECT_EQ(version(path() + "/corvanta.db"), 1);
    EXPECT_FALSE(fs::exists(copy()));
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
