#include "options.h"

#include <algorithm>

#include "commands.h"

namespace cvdev {

bool Options::has(std::string_view flag) const {
    return std::ranges::find(flags, flag) != flags.end();
}

Options read_options(Words arguments, std::span<const std::string_view> known_flags) {
    Options options;
    for (const std::string& argument : arguments) {
        if (!argument.starts_with("--")) {
            options.words.push_back(argument);
        } else if (std::ranges::find(known_flags, argument) != known_flags.end()) {
            options.flags.push_back(argument);
        } else {
            throw UsageError{"unknown option " + argument};
        }
    }
    return options;
}

const std::string& only_folder(const Options& options) {
    require_words(options, 1, "one FOLDER is");
    return options.words.front();
}

void require_words(const Options& options, std::size_t count, std::string_view names) {
    if (options.words.size() != count) {
        throw UsageError{std::string(names) + " needed"};
    }
}

}  // namespace cvdev
