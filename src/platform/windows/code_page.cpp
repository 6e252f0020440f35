#include "platform/code_page.h"

#include <windows.h>

#include <algorithm>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/windows/utf16.h"

namespace cvdeveloper {
namespace {

constexpr std::size_t longest_piece = 1U << 20U;

bool is_ascii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// The number of units, at most the longest piece, that ends with a whole character.
std::size_t piece_of(std::wstring_view text) {
    if (text.size() <= longest_piece) {
        return text.size();
    }
    const wchar_t last = text[longest_piece - 1];
    return last >= 0xD800 && last <= 0xDBFF ? longest_piece - 1 : longest_piece;
}

}  // namespace

std::string to_code_page(std::string_view text) {
    if (is_ascii(text)) {
        return std::string(text);
    }
    // A code page of UTF-8 knows every character and takes no report of missing ones.
    const bool may_miss = GetACP() != CP_UTF8;
    const std::wstring units = to_utf16(text);
    std::string bytes;
    for (std::wstring_view rest = units; !rest.empty();) {
        const std::size_t size = piece_of(rest);
        BOOL missed = FALSE;
        std::string piece(size * 4, '\0');
        const int length = WideCharToMultiByte(
            CP_ACP, may_miss ? WC_NO_BEST_FIT_CHARS : 0, rest.data(), static_cast<int>(size),
            piece.data(), static_cast<int>(piece.size()), nullptr, may_miss ? &missed : nullptr);
        if (missed != FALSE || length <= 0) {
            raise(RuntimeError::InvalidCall);
        }
        bytes.append(piece, 0, static_cast<std::size_t>(length));
        rest.remove_prefix(size);
    }
    return bytes;
}

std::string from_code_page(std::string_view bytes) {
    if (is_ascii(bytes)) {
        return std::string(bytes);
    }
    // Characters of several bytes must not be cut, so all of the text is read at once.
    if (bytes.size() > INT_MAX) {
        raise(RuntimeError::Overflow);
    }
    const auto size = static_cast<int>(bytes.size());
    std::wstring units(static_cast<std::size_t>(size), L'\0');
    const int length = MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, units.data(), size);
    return to_utf8(
        std::wstring_view(units).substr(0, static_cast<std::size_t>(std::max(length, 0))));
}

}  // namespace cvdeveloper
