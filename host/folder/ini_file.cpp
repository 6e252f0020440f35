#include "host/folder/ini_file.h"

#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

std::string_view trimmed(std::string_view text) noexcept {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::string entry(std::string_view section, std::string_view key) {
    return lower_case(section) + "\n" + lower_case(key);
}

}  // namespace

IniFile IniFile::parse(std::string_view text) {
    IniFile file;
    std::string_view section;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = trimmed(text.substr(0, end));
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        if (line.empty() || line.front() == ';' || line.front() == '#') {
            continue;
        }
        if (line.front() == '[') {
            section = trimmed(line.substr(1, line.find(']') - 1));
        } else if (const std::size_t sign = line.find('='); sign != std::string_view::npos) {
            file.values_[entry(section, trimmed(line.substr(0, sign)))] =
                trimmed(line.substr(sign + 1));
        }
    }
    return file;
}

std::string IniFile::get(std::string_view section, std::string_view key,
                         std::string_view default_value) const {
    const auto found = values_.find(entry(section, key));
    return found == values_.end() ? std::string(default_value) : found->second;
}

}  // namespace cvdeveloper::standalone
