#include "shell.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace cvdev {

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

}  // namespace cvdev
