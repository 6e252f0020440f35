#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <string_view>

// The one translation of errors between the library and the system.
namespace cvdeveloper::com {

// Numbers 1 to 65535 are the automation runtime's and travel as 0x800A0000 + number; all others are
// statuses as they are.
HRESULT status_of_number(std::int32_t number) noexcept;
std::int32_t number_of_status(HRESULT status) noexcept;

// The status of the exception that is being handled, which becomes the thread's error information.
HRESULT set_error_information(const IID& interface_id) noexcept;

// The same into a late-bound caller's structure, which may be missing; gives DISP_E_EXCEPTION then.
HRESULT fill_exception(EXCEPINFO* target) noexcept;

// Throws what a late-bound call of a host's object came back with. The structure's texts are taken.
// An error of the host keeps its structure, and leaves the library as the very same error.
[[noreturn]] void throw_foreign(HRESULT status, EXCEPINFO& information, std::string_view member);

}  // namespace cvdeveloper::com
