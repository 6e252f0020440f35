#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cvdeveloper/automation/date.h"

// The disk, one file or folder at a time. "\" and "/" both separate folders. Failures are the
// runtime's file errors and name the path: 52 no possible name, 53 no such file, 58 exists already,
// 61 disk full, 70 not permitted, 76 no such folder, 75 anything else.
namespace cvdeveloper::files {

enum class Kind : std::uint8_t { Nothing, File, Folder };

// What the path leads to, through links. Nothing for a path that cannot be one.
Kind kind_of(std::string_view path);
bool file_exists(std::string_view path);
bool folder_exists(std::string_view path);

struct Entry {
    std::string name;
    Kind kind = Kind::Nothing;
};
// In the file system's order, without "." and "..".
std::vector<Entry> entries(std::string_view folder);

struct Properties {
    std::uint64_t size = 0;
    Date created;  // or the last change, where the file system keeps no date of creation
    Date modified;
};
Properties properties(std::string_view path);

void create_folder(std::string_view path);
// Follows links; the copy keeps rights and date. A copy that breaks off leaves no new file behind.
void copy_file(std::string_view from, std::string_view to, bool overwrite);
// The link itself.
void copy_link(std::string_view from, std::string_view to);
bool is_link(std::string_view path);
// By its name, or on Windows by its attribute.
bool is_hidden(std::string_view path);
// False where the target is on another file system. Error 58 where there is one already.
bool rename(std::string_view from, std::string_view to);
void remove_file(std::string_view path);
// With all that is in it; links in it go, what they lead to stays.
void remove_folder(std::string_view path);
// Whether the inner path is the outer folder or lies in it.
bool is_inside(std::string_view inner, std::string_view outer);

std::string read_text(std::string_view path);

// TMPDIR where it names a folder, else a folder of the user's own that nobody else may enter; on
// Windows the system's own.
std::string temp_folder();
// A new folder there, which only the user may enter; its name begins so.
std::string new_temp_folder(std::string_view name);

// Nobody but the user may use the file or folder from here on, nor what is made in the folder. A
// file system without rights leaves everything as it is.
void restrict_to_owner(std::string_view path);

// A file open for writing. What is written is in the file at once; what is appended goes to its
// end in one piece, whoever else writes.
class OutputFile {
  public:
    enum class Mode : std::uint8_t { CreateNew, Overwrite, Append };

    OutputFile(std::string_view path, Mode mode);
    OutputFile(OutputFile&& other) noexcept
        : path_(std::move(other.path_)), handle_(std::exchange(other.handle_, closed)) {}
    OutputFile& operator=(OutputFile&& other) noexcept {
        std::swap(path_, other.path_);
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~OutputFile();

    // Opens a file for appending that is there already; nothing where that is not possible.
    static std::optional<OutputFile> existing(std::string_view path);

    void write(std::string_view text);

  private:
    static constexpr std::intptr_t closed = -1;

    OutputFile(std::string_view path, std::intptr_t handle) : path_(path), handle_(handle) {}

    std::string path_;
    std::intptr_t handle_;  // the system's
};

}  // namespace cvdeveloper::files
