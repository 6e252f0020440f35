#pragma once

#include "cvdeveloper/automation/interface_table.h"

// The arguments that making a record of most tables shares.
namespace cvdeveloper::record_parameter {

inline constexpr Parameter mask{
    .name = "strEmskDsn", .help = "key of the entry mask", .default_value = ""};
inline constexpr Parameter note{.name = "strNotiz", .help = "note", .default_value = ""};

}  // namespace cvdeveloper::record_parameter
