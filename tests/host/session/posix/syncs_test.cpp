// How often the disk is waited for.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <map>
#include <memory>

#include "host/database/sqlite/memory_files.h"
#include "support/standalone_application.h"

namespace cvdeveloper {
namespace {

// The database's file system, found in its place while this lives: it counts how often files are
// synced.
class CountedSyncs {
  protected:
    CountedSyncs() {
        syncs = 0;
        original = sqlite3_vfs_find(standalone::sqlite::file_system_with_memory_files());
        counting = *original;
        counting.xOpen = open;
        sqlite3_vfs_register(&counting, 1);
    }
    CountedSyncs(const CountedSyncs&) = delete;
    CountedSyncs& operator=(const CountedSyncs&) = delete;
    ~CountedSyncs() { sqlite3_vfs_unregister(&counting); }

    static inline int syncs = 0;

  private:
    struct Methods {
        sqlite3_io_methods counting;
        const sqlite3_io_methods* original;
    };

    static int open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* given) {
        const int code = original->xOpen(original, name, file, flags, given);
        if (file->pMethods != nullptr) {
            auto& methods = all_methods[file->pMethods];
            if (methods == nullptr) {
                methods = std::make_unique<Methods>(Methods{*file->pMethods, file->pMethods});
                methods->counting.xSync = sync;
            }
            file->pMethods = &methods->counting;
        }
        return code;
    }
    static int sync(sqlite3_file* file, int flags) {
        ++syncs;
        return reinterpret_cast<const Methods*>(file->pMethods)->original->xSync(file, flags);
    }

    static inline sqlite3_vfs* original = nullptr;
    static inline sqlite3_vfs counting{};
    static inline std::map<const sqlite3_io_methods*, std::unique_ptr<Methods>> all_methods;
};

class SyncsTest : public CountedSyncs, public StandaloneApplicationTest {
  protected:
    SyncsTest() : StandaloneApplicationTest(true) {
        // The first write of a session also makes the write-ahead log.
        app->AKT_Create("", "erster");
        syncs = 0;
    }
};

TEST_F(SyncsTest, MakingAnActivityWithTwoFeaturesWaitsForTheDiskOnce) {
    const std::string key = app->AKT_Create("", "Anruf");
    EXPECT_EQ(syncs, 1);
    EXPECT_EQ(count("SELECT DSN FROM AKTMKM WHERE Link_DSN='" + key + "'"), 2);
    for (int i = 0; i < 9; ++i) {
        app->AKT_Create("", "Anruf");
    }
    EXPECT_EQ(syncs, 10);
}

// The log goes to the database's file only now and then.
TEST_F(SyncsTest, AHundredWritesWaitForTheirCommitsAlone) {
    for (int i = 0; i < 100; ++i) {
        app->AKT_Create("", "Anruf");
    }
    EXPECT_EQ(syncs, 100);
}

TEST_F(SyncsTest, EachWriteOfACallersOwnWaitsForTheDisk) {
    app->oBase()->Det_SetValue("AKT", "A", "B", "eins");
    app->oBase()->Det_SetValue("AKT", "A", "B", "zwei");
    EXPECT_EQ(syncs, 2);
}

TEST_F(SyncsTest, CopyingAProjectWaitsForTheDiskOnceAndSavingTheCopiesOnceMore) {
    const RecordSet originals = app->AKT_Find(
        "Projekte_Dsn='B0000000-0000-4000-8000-000000000001' AND NOT EXISTS (SELECT "
        "1 FROM Blob WHERE uidLINK_DSN=AKT.DSN)");
    RecordSet copies = app->AKT_Copy(originals, "", "P");
    EXPECT_EQ(syncs, 1);
    app->AKT_Update(copies);
    EXPECT_EQ(syncs, 2);
    EXPECT_GT(count("SELECT DSN FROM AKT WHERE Projekte_DSN='P'"), 5);
}

TEST_F(SyncsTest, ReadingWaitsForNothing) {
    select("SELECT * FROM AKT");
    EXPECT_EQ(syncs, 0);
}

}  // namespace
}  // namespace cvdeveloper
