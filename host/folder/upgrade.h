#pragma once

#include <filesystem>

#include "host/database/database.h"
#include "host/folder/host_log.h"

namespace cvdeveloper::standalone {

// The version of a database's schema, as its table Version has it; 0 where that is empty.
int version_of(Database& database);

// Brings a database of an earlier version up to this one, step by step in one transaction, all or
// nothing. Before that its content is copied into a file beside it, "corvanta.db.version-1".
// Where somebody else does the same at the moment, it waits and finds it done. Errors: those of
// the disk, LockTimeout; Folder where a step's file is missing.
void upgrade(Database& database, const std::filesystem::path& file, const HostLog& log);

}  // namespace cvdeveloper::standalone
