#include <fstream>
#include <iostream>
#include <string>

#include "entities/families/generate/writer.h"

namespace {

bool write(const std::string& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    std::cout << path << (file ? "\n" : ": cannot be written\n");
    return static_cast<bool>(file);
}

}  // namespace

int main(int argument_count, char** arguments) {
    if (argument_count != 2) {
        std::cerr << "usage: write_families SOURCE_FOLDER\n";
        return 2;
    }
    using namespace cvdeveloper::families;
    const std::string root = arguments[1];
    const bool header = write(root + "/include/cvdeveloper/entities/families.h", written_header());
    const bool members = write(root + "/src/entities/families.cpp", written_members());
    return header && members ? 0 : 1;
}
