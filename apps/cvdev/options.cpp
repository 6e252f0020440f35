#include "options.h"

#include <algorithm>

#include "commands.h"

namespace cvdev {

bool Options::has(std::string_view flag) const {
    return std::ranges::find(flags, flag) != flags.end();
}

Options read(Words arguments, std::span<const std::string_view> known_flags) {
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
    if (options.words.size() != 1) {
        throw UsageError{"one FOLDER is needed"};
    }
    return options.words.front();
}

}  // namespace cvdev
