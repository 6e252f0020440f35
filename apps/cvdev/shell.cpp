#include "shell.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace cvdev {

namespace {

namespace fs = std::filesystem;

// The folder of the Python package: beside an installed program, else that of the build.
std::string python_path() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    const fs::path installed = program.parent_path() / CVDEV_INSTALLED_PYTHON_PATH;
    return fs::exists(installed / "cvdeveloper", error) ? installed.lexically_normal().string()
                                                        : CVDEV_PYTHON_PATH;
}

}  // namespace

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

}  // namespace cvdev
