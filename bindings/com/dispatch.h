#pragma once

#include <windows.h>

#include <oleauto.h>

#include "instance.h"

// Late-bound calls of an object: what its IDispatch does.
namespace cvdeveloper::com {

HRESULT find_ids(const Instance& self, std::span<LPOLESTR> names, DISPID* ids) noexcept;

// One call by id. Arguments may be left out, named, or variables of the caller's; the caller's
// variables change only when the call succeeds.
HRESULT invoke(Instance& self, DISPID id, WORD flags, const DISPPARAMS& parameters, VARIANT* result,
               EXCEPINFO* exception) noexcept;

}  // namespace cvdeveloper::com
