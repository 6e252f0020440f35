#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cvdev {

using Words = std::span<const std::string>;

// The words of a command line behind the command.
struct Options {
    std::vector<std::string> words;
    std::vector<std::string> flags;

    [[nodiscard]] bool has(std::string_view flag) const;
};

// Errors: UsageError for a flag that is not known.
Options read_options(Words arguments, std::span<const std::string_view> known_flags = {});

// The only word. Errors: UsageError for none or several.
const std::string& only_folder(const Options& options);

// Errors: UsageError, "FOLDER and FILE are needed", where there are not so many words.
void require_words(const Options& options, std::size_t count, std::string_view names);

}  // namespace cvdev
