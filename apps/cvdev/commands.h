#pragma once

#include <span>
#include <string>
#include <string_view>

namespace cvdev {

// One command of the command line. Gives the exit code; what goes wrong is raised.
struct Command {
    std::string_view name;
    std::string_view arguments;
    std::string_view help;
    int (*run)(std::span<const std::string> arguments);
};

std::span<const Command> commands();

// The arguments do not fit the command.
struct UsageError {
    std::string text;
};

}  // namespace cvdev
