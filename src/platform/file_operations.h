#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

// The scripting runtime's file operations: several files or folders at once through wildcards in
// the last part of the path. The first failure ends an operation; what was done stays done.
namespace cvdeveloper::files {

// The files (or folders) that the path names, with the folder as it was written. Errors: 53 for no
// file, 76 for no folder.
std::vector<std::string> files_named(std::string_view path);
std::vector<std::string> folders_named(std::string_view path);

// A source with wildcards and a target that ends in a separator ask for a folder that exists.
void copy_files(std::string_view source, std::string_view target, bool overwrite);
void copy_folders(std::string_view source, std::string_view target, bool overwrite);
void move_files(std::string_view source, std::string_view target);
void move_folders(std::string_view source, std::string_view target);
// One file or folder, also to another file system. Error 58 where the target exists.
void move(std::string_view from, std::string_view to);
void remove_files(std::string_view path);
void remove_folders(std::string_view path);

// Adds the line, in the system's code page, and CR LF in one piece, so that lines of several
// processes do not mix; makes the file where it is missing. False where that failed.
bool append_line(std::string_view path, std::string_view line);
// The same for a file that is open for appending.
bool append_line(OutputFile& file, std::string_view line);

// Of all files in the folder and below, through no link.
double total_size(std::string_view folder);

}  // namespace cvdeveloper::files
