#pragma once

namespace cvdeveloper::standalone::sqlite {

// The name of a file system for the database: the system's own, but files without a name, which
// are what large sorts and intermediate results are put into, stay in memory. Nobody finds an
// office's data on another disk, and a sort goes in pieces, between which it can be stopped.
const char* file_system_with_memory_files();

}  // namespace cvdeveloper::standalone::sqlite
