#include "write_reference.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace cvdev {

namespace {

namespace fs = std::filesystem;

bool is_page(const fs::path& file) {
    std::ifstream in(file);
    std::string line;
    return std::getline(in, line) && line == cvdeveloper::reference_mark;
}

std::vector<fs::path> pages_in(const fs::path& folder) {
    std::vector<fs::path> pages;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (entry.is_regular_file() && is_page(entry.path())) {
            pages.push_back(entry.path());
        }
    }
    return pages;
}

}  // namespace

void write_reference(const fs::path& folder, std::span<const cvdeveloper::ReferencePage> pages) {
    fs::create_directories(folder);
    for (const fs::path& old : pages_in(folder)) {
        if (std::ranges::find(pages, old.filename().string(),
                              &cvdeveloper::ReferencePage::file_name) == pages.end()) {
            fs::remove(old);
        }
    }
    for (const cvdeveloper::ReferencePage& page : pages) {
        std::ofstream file(folder / page.file_name, std::ios::binary);
        file << page.text;
        file.close();
        if (!file) {
            throw std::runtime_error((folder / page.file_name).string() + " cannot be written");
        }
    }
}

}  // namespace cvdev
