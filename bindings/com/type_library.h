#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string>
#include <string_view>

namespace cvdeveloper::com {

// The file of this module.
std::wstring module_path();

// The type library inside this module; the caller's to release.
HRESULT load_type_library(ITypeLib** target) noexcept;

// What the type library says of an interface and of a class; the caller's to release.
HRESULT interface_information(const IID& id, ITypeInfo** target) noexcept;
HRESULT class_information(std::string_view class_name, ITypeInfo** target) noexcept;

}  // namespace cvdeveloper::com
