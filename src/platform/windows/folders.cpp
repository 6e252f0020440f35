#include <windows.h>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/windows/file_errors.h"
#include "platform/windows/file_handle.h"
#include "platform/windows/utf16.h"

namespace cvdeveloper::files {
namespace {

class Search {
  public:
    explicit Search(std::string_view pattern)
        : handle_(FindFirstFileW(native(pattern).c_str(), &found_)) {}
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;
    ~Search() {
        if (*this) {
            FindClose(handle_);
        }
    }

    explicit operator bool() const noexcept { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] const WIN32_FIND_DATAW& found() const noexcept { return found_; }
    bool next() noexcept { return FindNextFileW(handle_, &found_) != FALSE; }

  private:
    WIN32_FIND_DATAW found_{};
    HANDLE handle_;
};

Kind kind_found(std::string_view folder, std::string_view name, DWORD attributes) {
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        return kind_of(paths::join(folder, name));
    }
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::Folder : Kind::File;
}

std::wstring full_path(std::string_view path) {
    const std::wstring text = native(path);
    std::wstring full(text.size() + MAX_PATH, L'\0');
    const DWORD length =
        GetFullPathNameW(text.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    full.resize(length < full.size() ? length : 0);
    return full;
}

// Through links and short names; empty where there is no such thing.
std::wstring final_path(const std::wstring& path) {
    const FileHandle opened(to_utf8(path), 0, OPEN_EXISTING);
    if (!opened) {
        return {};
    }
    std::wstring text(32'768, L'\0');
    text.resize(GetFinalPathNameByHandleW(opened.get(), text.data(),
                                          static_cast<DWORD>(text.size()), FILE_NAME_NORMALIZED));
    return text;
}

// The part of the path that exists in its final form, and the rest as it was written.
std::wstring canonical(std::string_view path) {
    std::wstring existing = full_path(paths::without_end_separators(path));
    std::wstring rest;
    for (;;) {
        if (std::wstring final = final_path(existing); !final.empty()) {
            return final + rest;
        }
        const std::size_t last = existing.rfind(L'\\');
        if (last == std::wstring::npos || last == 0) {
            return existing + rest;
        }
        rest.insert(0, existing, last);
        existing.resize(last);
    }
}

bool equal_names(std::wstring_view left, std::wstring_view right) {
    return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace

std::vector<Entry> entries(std::string_view folder) {
    std::vector<Entry> list;
    Search search(paths::join(folder, "*"));
    if (!search) {
        const DWORD error = GetLastError();
        if (error == ERROR_FILE_NOT_FOUND && folder_exists(folder)) {
            return list;  // an empty drive has not even "." and ".."
        }
        raise_file_error(error == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : error, folder);
    }
    do {
        const std::wstring_view name = search.found().cFileName;
        if (name != L"." && name != L"..") {
            std::string text = to_utf8(name);
            const Kind kind = kind_found(folder, text, search.found().dwFileAttributes);
            list.push_back({std::move(text), kind});
        }
    } while (search.next());
    if (GetLastError() != ERROR_NO_MORE_FILES) {
        raise_last_error(folder);
    }
    return list;
}

void remove_folder(std::string_view path) {
    for (const Entry& entry : entries(path)) {
        const std::string inner = paths::join(path, entry.name);
        if (entry.kind == Kind::Folder && !is_link(inner)) {
            remove_folder(inner);
        } else {
            remove_file(inner);
        }
    }
    if (RemoveDirectoryW(native(path).c_str()) == FALSE) {
        raise_last_error(path);
    }
}

bool is_inside(std::string_view inner, std::string_view outer) {
    const std::wstring inside = canonical(inner);
    std::wstring outside = canonical(outer);
    if (equal_names(inside, outside)) {
        return true;
    }
    if (!outside.ends_with(L'\\')) {
        outside += L'\\';
    }
    return inside.size() > outside.size() &&
           equal_names(std::wstring_view(inside).substr(0, outside.size()), outside);
}

}  // namespace cvdeveloper::files
