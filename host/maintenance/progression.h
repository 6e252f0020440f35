#pragma once

#include <functional>
#include <string_view>

namespace cvdeveloper::standalone {

// Told how far a long piece of work has come: what is done at the moment, in the user's words, and
// the share of the whole, from 0 to 1. What it raises ends the work.
using Progression = std::function<void(std::string_view step, double share)>;

inline void nothing_to_tell(std::string_view, double) {}

}  // namespace cvdeveloper::standalone
