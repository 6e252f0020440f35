#include "commands.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <vector>

#include "bindings/com/class_ids.h"
#include "cvdeveloper/automation/idl.h"
#include "cvdeveloper/automation/reference.h"
#include "cvdeveloper/public_classes.h"
#include "host/folder/create_folder.h"
#include "write_reference.h"

namespace cvdev {

namespace {

using Words = std::span<const std::string>;

struct Options {
    std::vector<std::string> words;
    std::vector<std::string> flags;

    [[nodiscard]] bool has(std::string_view flag) const {
        return std::ranges::find(flags, flag) != flags.end();
    }
};

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

int init(Words arguments) {
    constexpr std::array<std::string_view, 1> flags{"--sample"};
    const Options options = read(arguments, flags);
    const std::string& folder = only_folder(options);
    const bool sample = options.has("--sample");
    cvdeveloper::standalone::create_folder(folder, {.sample = sample});
    std::cout << folder << " ist angelegt" << (sample ? ", mit Beispieldaten" : "")
              << ". Benutzer: chef, Kennwort: leer.\n";
    return EXIT_SUCCESS;
}

// Hands over to the interpreter, with app connected.
int shell(Words arguments) {
    const Options options = read(arguments, {});
    const std::string folder = only_folder(options);
    const std::string start =
        "import sys, cvdeveloper; app = cvdeveloper.connect(sys.argv[1]); "
        "print('app ist mit', sys.argv[1], 'verbunden. help(app) zeigt, was es kann.')";
    std::string path = CVDEV_PYTHON_PATH;
    if (const char* others = std::getenv("PYTHONPATH"); others != nullptr && *others != '\0') {
        path.append(":").append(others);
    }
    setenv("PYTHONPATH", path.c_str(), 1);
    std::vector<std::string> words{CVDEV_PYTHON, "-i", "-c", start, folder};
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    execv(CVDEV_PYTHON, pointers.data());
    std::cerr << CVDEV_PYTHON << " lässt sich nicht starten\n";
    return EXIT_FAILURE;
}

int interface(Words arguments) {
    constexpr std::array<std::string_view, 2> flags{"--idl", "--reference"};
    const Options options = read(arguments, flags);
    if (options.has("--reference")) {
        write_reference(only_folder(options),
                        cvdeveloper::reference_pages(cvdeveloper::documented_classes(),
                                                     cvdeveloper::enumerations()));
        return EXIT_SUCCESS;
    }
    if (!options.words.empty()) {
        throw UsageError{"no arguments are taken"};
    }
    if (options.has("--idl")) {
        std::cout << cvdeveloper::idl_text(cvdeveloper::com::library_ids,
                                           cvdeveloper::documented_classes(),
                                           cvdeveloper::enumerations());
        return EXIT_SUCCESS;
    }
    for (const cvdeveloper::InterfaceTable* table : cvdeveloper::public_classes()) {
        for (const cvdeveloper::Operation* operation : table->operations()) {
            std::cout << table->class_name() << "." << operation->name << "\n";
        }
    }
    return EXIT_SUCCESS;
}

constexpr Command all[] = {
    {"init", "FOLDER [--sample]", "makes a host folder with an empty or a sample database", init},
    {"shell", "FOLDER", "opens Python with app connected to the host folder", shell},
    {"interface", "[--idl | --reference FOLDER]",
     "lists the operations, prints them as IDL, or writes the reference pages", interface},
};

}  // namespace

std::span<const Command> commands() {
    return all;
}

}  // namespace cvdev
