#pragma once

#include <span>
#include <string>
#include <string_view>

namespace cvdeveloper {

// ". Meinten Sie AKT_Create?" with the up to three names that are nearest to a misspelt one; ""
// where none is near. Case does not count.
std::string did_you_mean(std::string_view misspelt, std::span<const std::string_view> names);

}  // namespace cvdeveloper
