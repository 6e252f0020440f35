#pragma once

#include <string_view>

// The names of what a backup holds. The first entry tells that it is one, the last that it is
// complete.
namespace cvdeveloper::standalone::backup_parts {

inline constexpr std::string_view first = "sicherung.txt";
inline constexpr std::string_view last = "ende.txt";
inline constexpr std::string_view settings = "corvanta.ini";
inline constexpr std::string_view database = "corvanta.db";
inline constexpr std::string_view pictures = "pic.obj/";
inline constexpr std::string_view attachments = "Anlagen/";

// The text of the first entry begins so.
inline constexpr std::string_view mark = "Sicherung eines Corvanta-Ordners, Form 1\n";

}  // namespace cvdeveloper::standalone::backup_parts
