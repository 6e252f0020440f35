#include "commands.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include "bindings/com/class_ids.h"
#include "cvdeveloper/automation/idl.h"
#include "cvdeveloper/automation/reference.h"
#include "cvdeveloper/public_classes.h"
#include "host/folder/create_folder.h"
#ifndef _WIN32
#include "maintenance.h"
#include "shell.h"
#include "user.h"
#endif
#include "options.h"
#include "terminal_progress.h"
#include "write_reference.h"

namespace cvdev {

namespace {

int init(Words arguments) {
    constexpr std::array<std::string_view, 1> flags{"--sample"};
    const Options options = read_options(arguments, flags);
    const std::string& folder = only_folder(options);
    const bool sample = options.has("--sample");
    TerminalProgress progress("Beispieldaten");
    cvdeveloper::standalone::create_folder(folder,
                                           {.sample = sample, .progress = std::ref(progress)});
    progress.clear();
    std::cout << folder << " ist angelegt" << (sample ? ", mit Beispieldaten" : "")
              << ". Benutzer: chef, Kennwort: leer.\n";
    return EXIT_SUCCESS;
}

int interface(Words arguments) {
    constexpr std::array<std::string_view, 2> flags{"--idl", "--reference"};
    const Options options = read_options(arguments, flags);
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
    {"interface", "[--idl | --reference FOLDER]",
     "lists the operations, prints them as IDL, or writes the reference pages", interface},
#ifndef _WIN32  // where there is no Python module, and folders are kept by the office's server
    {"shell", "FOLDER", "opens Python with app connected to the host folder", shell},
    {"user",
     "list FOLDER | add FOLDER NAME [--admin] | passwd FOLDER NAME | deactivate FOLDER NAME | "
     "activate FOLDER NAME",
     "lists users, adds one, changes a password (asks for it, or reads one line), refuses or "
     "allows "
     "log-ons",
     user},
    {"check", "FOLDER",
     "verifies database and attachments and says what is wrong; exit code 1 then", check},
    {"backup", "FOLDER FILE",
     "writes everything of a host folder into a tar file while others go on working", backup},
    {"restore", "FILE FOLDER", "makes a host folder from a backup and verifies it", restore},
#endif
};

}  // namespace

std::span<const Command> commands() {
    return all;
}

}  // namespace cvdev
