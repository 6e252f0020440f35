#include <sqlite3ext.h>

#include "host/database/sqlite/functions.h"

// Loaded by the peers in Python, which compare texts with the same code as all others then.
extern "C" __attribute__((visibility("default"))) int sqlite3_extension_init(
    sqlite3* database, char**, const sqlite3_api_routines*) {
    cvdeveloper::standalone::sqlite::install_functions(database);
    return SQLITE_OK;
}
