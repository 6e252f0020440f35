#pragma once

#include <string_view>

// How texts compare in the database: without regard to case and to trailing blanks. An umlaut
// sorts with its base letter and is not equal to it; a sharp s is not "ss". The order is our own
// and fixed, because indexes on disk are built on it: the system's may change with an update.
namespace cvdeveloper::standalone::sql {

// Negative, zero or positive.
int compare_texts(std::string_view left, std::string_view right) noexcept;

// LIKE with "%" and "_"; an escape of 0 is none.
bool is_like(std::string_view text, std::string_view pattern, char32_t escape) noexcept;

}  // namespace cvdeveloper::standalone::sql
