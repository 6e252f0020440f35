#pragma once

#include <array>

#include "cvdeveloper/automation/interface_table.h"

namespace cvdeveloper::com {

// The seven slots with which every vtable begins: IUnknown's and IDispatch's.
std::array<NativeEntry, 7> dispatch_entries() noexcept;

}  // namespace cvdeveloper::com
