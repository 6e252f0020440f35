#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace cvdeveloper {

// The runtime's Dir: the names that fit a path, one by one.
class DirectorySearch {
  public:
    // Attributes: 2 hidden (names that begin with "."), 16 folders; files are always found.
    void start(std::string_view path, std::int32_t attributes);
    // "" when there are no more.
    std::string next();

  private:
    std::vector<std::string> names_;
    std::size_t position_ = 0;
};

}  // namespace cvdeveloper
