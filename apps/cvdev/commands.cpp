#include "commands.h"

#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <vector>

#include "cvdeveloper/automation/idl.h"
#include "cvdeveloper/automation/reference.h"
#include "cvdeveloper/public_classes.h"
#include "host/folder/create_folder.h"
#include "maintenance.h"
#include "options.h"
#include "terminal_progress.h"
#include "user.h"
#include "write_reference.h"

namespace cvdev {

namespace {

namespace fs = std::filesystem;

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

// The folder of the Python package: beside an installed program, else that of the build.
std::string python_path() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    const fs::path installed = program.parent_path() / CVDEV_INSTALLED_PYTHON_PATH;
    return fs::exists(installed / "cvdeveloper", error) ? installed.lexically_normal().string()
                                                        : CVDEV_PYTHON_PATH;
}

// Hands over to the interpreter, with app connected.
int shell(Words arguments) {
    const Options options = read_options(arguments);
    const std::string folder = only_folder(options);
    const std::string start =
        "import sys, cvdeveloper; app = cvdeveloper.connect(sys.argv[1]); "
        "print('app ist mit', sys.argv[1], 'verbunden. help(app) zeigt, was es kann.')";
    std::string path = python_path();
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
    const Options options = read_options(arguments, flags);
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
        std::cout << cvdeveloper::idl_text(cvdeveloper::public_classes(),
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
    {"user", "list FOLDER | add FOLDER NAME [--admin] | passwd FOLDER NAME",
     "lists users, adds one, changes a password; asks for passwords, or reads one line", user},
    {"check", "FOLDER",
     "verifies database and attachments and says what is wrong; exit code 1 then", check},
    {"backup", "FOLDER FILE",
     "writes everything of a host folder into a tar file while others go on working", backup},
    {"restore", "FILE FOLDER", "makes a host folder from a backup and verifies it", restore},
};

}  // namespace

std::span<const Command> commands() {
    return all;
}

}  // namespace cvdev
