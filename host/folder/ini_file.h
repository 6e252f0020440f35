#pragma once

#include <map>
#include <string>
#include <string_view>

namespace cvdeveloper::standalone {

// Reads "[section]" and "key = value" lines; ";" and "#" begin a comment. Names without regard to
// case. What is missing reads as the given default.
class IniFile {
  public:
    static IniFile parse(std::string_view text);

    [[nodiscard]] std::string get(std::string_view section, std::string_view key,
                                  std::string_view default_value) const;

  private:
    std::map<std::string, std::string> values_;  // by "section\nkey" in lower case
};

}  // namespace cvdeveloper::standalone
