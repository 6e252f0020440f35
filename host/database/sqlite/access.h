#pragma once

#include <cstdint>

#include "host/database/catalog.h"
#include "host/database/database.h"

struct sqlite3;

namespace cvdeveloper::standalone::sqlite {

// What a statement that is being prepared may touch. The database asks here for every table,
// column and function, also when it prepares a statement again by itself.
struct Access {
    Author author = Author::Host;
    const Catalog* catalog = nullptr;
};

// The access must outlive the connection.
void install_access_check(sqlite3* connection, const Access& access);

}  // namespace cvdeveloper::standalone::sqlite
