#pragma once

#include "instance.h"

namespace cvdeveloper::com {

// Goes through a collection's items, as "For Each" asks. The caller's to release.
IUnknown* make_enumerator(Instance& collection);

}  // namespace cvdeveloper::com
