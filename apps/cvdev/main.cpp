#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "commands.h"
#include "cvdeveloper/automation/error.h"
#include "process.h"

namespace {

void print_usage(std::ostream& out) {
    out << "usage: cvdev COMMAND\n\n";
    for (const cvdev::Command& command : cvdev::commands()) {
        out << "  cvdev " << command.name << " " << command.arguments << "\n      " << command.help
            << "\n";
    }
}

int run(const std::vector<std::string>& words) {
    if (words.empty() || words.front() == "--help" || words.front() == "help") {
        print_usage(words.empty() ? std::cerr : std::cout);
        return words.empty() ? 2 : EXIT_SUCCESS;
    }
    for (const cvdev::Command& command : cvdev::commands()) {
        if (command.name == words.front()) {
            return command.run(std::span(words).subspan(1));
        }
    }
    throw cvdev::UsageError{"unknown command " + words.front()};
}

}  // namespace

int main(int count, char** values) {
    try {
        return run(cvdev::start(count, values));
    } catch (const cvdev::UsageError& error) {
        std::cerr << "cvdev: " << error.text << "\n\n";
        print_usage(std::cerr);
        return 2;
    } catch (const cvdeveloper::AutomationError& error) {
        std::cerr << "cvdev: " << error.description() << "\n";
        return EXIT_FAILURE;
    } catch (const std::exception& error) {
        std::cerr << "cvdev: " << error.what() << "\n";
        return EXIT_FAILURE;
    }
}
