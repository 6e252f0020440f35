#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/files.h"
#include "platform/paths.h"

namespace cvdeveloper {

// A folder of its own for one test; goes with the test.
class TemporaryFolder {
  public:
    TemporaryFolder() : path_(paths::to_system(files::new_temp_folder("cvdeveloper-test"))) {}
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] std::string text() const { return paths::to_text(path_); }
    [[nodiscard]] std::string file(std::string_view name) const {
        return paths::to_text(system_file(name));
    }
    [[nodiscard]] std::string read(std::string_view name) const {
        std::ifstream stream(system_file(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    void write(std::string_view name, std::string_view content) const {
        std::filesystem::create_directories(system_file(name).parent_path());
        std::ofstream(system_file(name), std::ios::binary) << content;
    }
    [[nodiscard]] bool has(std::string_view name) const {
        return std::filesystem::exists(system_file(name));
    }

  private:
    [[nodiscard]] std::filesystem::path system_file(std::string_view name) const {
        return path_ / paths::to_system(name);
    }

    std::filesystem::path path_;
};

}  // namespace cvdeveloper
