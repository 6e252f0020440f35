#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

// Text helpers that every layer needs. Text is UTF-8; lengths count UTF-16 units, as the
// database's columns do.
namespace cvdeveloper {

std::size_t length_in_units(std::string_view text) noexcept;
// The first characters that fit into so many UTF-16 units; no character is cut in two.
std::string_view first_units(std::string_view text, std::size_t units) noexcept;

// One-to-one case mapping: a sharp s stays, umlauts and every other letter change.
std::string upper_case(std::string_view text);
std::string lower_case(std::string_view text);
bool equal_ignoring_case(std::string_view left, std::string_view right);

// Without the blanks (not tabs, not line breaks) at both ends.
std::string_view trim_blanks(std::string_view text) noexcept;

// The pieces one after the other, with one allocation: for statements of many pieces.
std::string joined(std::initializer_list<std::string_view> pieces);

std::string replace_all(std::string_view text, std::string_view what, std::string_view with);

// Takes the text before the first delimiter off the list and the delimiter with it; the whole list
// where there is none.
std::string take_first(std::string& list, std::string_view delimiter);

}  // namespace cvdeveloper
