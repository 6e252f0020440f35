#pragma once

#include <cstdint>
#include <string>

#include "host/platform/open_file.h"

namespace cvdeveloper::standalone {

struct Content {
    std::uint64_t size = 0;
    std::string sha256;  // lower-case hexadecimal
};

// All of these read to the end of the file piece by piece, give up the interpreter lock meanwhile
// and can be interrupted between two pieces.
Content read_content(OpenFile& from);
Content copy_content(OpenFile& from, OpenFile& to);
// The number of bytes copied.
std::uint64_t copy_bytes(OpenFile& from, OpenFile& to);

}  // namespace cvdeveloper::standalone
