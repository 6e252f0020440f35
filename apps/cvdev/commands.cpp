#include "commands.h"

#include <array>
#include <cstdlib>
#include <iostream>
#include <string>

#include "bindings/com/class_ids.h"
#include "cvdeveloper/automation/idl.h"
#include "cvdeveloper/automation/reference.h"
#include "cvdeveloper/public_classes.h"
#include "host/folder/create_folder.h"
#include "options.h"
#include "shell.h"
#include "write_reference.h"

namespace cvdev {

namespace {

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

int interface(Words arguments) {
    constexpr std::array<std::string_view, 2> flags{"--idl", "--reference"};
    const Options options = read(arguments, flags);
    if (options.has("--reference")) {
        const std::string& folder = only_folder(options);
        write_reference(std::u8string(folder.begin(), folder.end()),
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
#ifndef _WIN32  // where there is no Python module
    {"shell", "FOLDER", "opens Python with app connected to the host folder", shell},
#endif
    {"interface", "[--idl | --reference FOLDER]",
     "lists the operations, prints them as IDL, or writes the reference pages", interface},
};

}  // namespace

std::span<const Command> commands() {
    return all;
}

}  // namespace cvdev
