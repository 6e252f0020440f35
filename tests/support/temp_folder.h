#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace cvdeveloper {

// A folder of a test's own, gone with the test.
class TempFolder {
  public:
    TempFolder() {
        std::string name =
            (std::filesystem::temp_directory_path() / "cvdeveloper-test-XXXXXX").string();
        path_ = mkdtemp(name.data());
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] std::string path(std::string_view name = {}) const {
        return name.empty() ? path_.string() : (path_ / name).string();
    }
    void write(std::string_view name, std::string_view content) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::ofstream(path_ / name, std::ios::binary) << content;
    }
    [[nodiscard]] std::string read(std::string_view name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    [[nodiscard]] bool has(std::string_view name) const {
        return std::filesystem::exists(path_ / name);
    }

  private:
    std::filesystem::path path_;
};

}  // namespace cvdeveloper
