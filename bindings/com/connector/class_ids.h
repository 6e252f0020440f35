#pragma once

#include "cvdeveloper/automation/idl.h"

// The ids by which the system knows the stand-alone host's classes. Frozen: an id is never changed
// and never used again. The classes are called by their members' names only.
namespace cvdeveloper::com {

inline constexpr ClassIds connector_class_ids[] = {
    {"CVConnector.Application", "", "bc448741-90e8-4ef0-990c-c5f7a34753ac"},
    {"clqexStdC10.cUtil", "", "4682851e-eb52-48b5-ba62-cdaa6e651e5d"},
    {"clqexstdc10.cLegalHolidays", "", "8429020e-3b5f-420a-a800-1544168b9025"},
    {"clqexstdc10.cProgress", "", "3a4f965e-c52d-4e21-8c11-f95937087f14"},
};

}  // namespace cvdeveloper::com
