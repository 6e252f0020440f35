#include "host/platform/installation.h"

#include <windows.h>

#include <cstdlib>
#include <string>

namespace cvdeveloper::standalone {

namespace {

// Of the program or library that this function is part of.
std::filesystem::path own_folder() {
    HMODULE own = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const wchar_t*>(&own_folder), &own);
    std::wstring file(32'768, L'\0');
    file.resize(GetModuleFileNameW(own, file.data(), static_cast<DWORD>(file.size())));
    return std::filesystem::path(file).parent_path();
}

}  // namespace

std::optional<std::filesystem::path> installed_schema() {
    if (const wchar_t* place = _wgetenv(L"CVDEVELOPER_SCHEMA")) {
        return place;
    }
    std::filesystem::path beside = own_folder() / "schema";
    std::error_code ignored;
    return std::filesystem::is_directory(beside, ignored) ? std::optional(std::move(beside))
                                                          : std::nullopt;
}

}  // namespace cvdeveloper::standalone
