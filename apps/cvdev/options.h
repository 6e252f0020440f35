#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cvdev {

using Words = std::span<const std::string>;

struct Options {
    std::vector<std::string> words;
    std::vector<std::string> flags;

    [[nodiscard]] bool has(std::string_view flag) const;
};

// Errors: UsageError for a flag that the command does not know.
Options read(Words arguments, std::span<const std::string_view> known_flags);
// The one word. Errors: UsageError where there is none, or more.
const std::string& only_folder(const Options& options);

}  // namespace cvdev
