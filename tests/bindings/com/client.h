#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdio>
#include <cstdlib>
#include <string>

// What programs share that call the registered servers.

inline std::string narrow(BSTR text) {
    if (text == nullptr) {
        return "(null)";
    }
    std::string bytes(SysStringLen(text) * 3 + 1, '\0');
    bytes.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text, static_cast<int>(SysStringLen(text)), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

// Ends the program where the class is not registered.
template <class T>
T* create(const wchar_t* name) {
    CLSID id{};
    T* made = nullptr;
    if (FAILED(CLSIDFromProgID(name, &id)) ||
        FAILED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(T),
                                reinterpret_cast<void**>(&made)))) {
        std::printf("%ls cannot be created\n", name);
        std::exit(1);
    }
    return made;
}
