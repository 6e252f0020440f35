#include "process.h"

#include <windows.h>

#include <shellapi.h>

namespace cvdev {

namespace {

std::string utf8(const wchar_t* text) {
    const auto convert = [text](char* bytes, int size) {
        return WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes, size, nullptr, nullptr);
    };
    const int size = convert(nullptr, 0);
    if (size <= 0) {
        return {};
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    convert(bytes.data(), size);
    bytes.pop_back();  // the zero at the end
    return bytes;
}

}  // namespace

// The words that main is given have lost every character that the code page does not have.
std::vector<std::string> start(int /*count*/, char** /*values*/) {
    SetConsoleOutputCP(CP_UTF8);
    int count = 0;
    wchar_t** const values = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> words;
    for (int index = 1; index < count; ++index) {
        words.push_back(utf8(values[index]));
    }
    LocalFree(values);
    return words;
}

}  // namespace cvdev
