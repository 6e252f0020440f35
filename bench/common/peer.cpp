#include "common/peer.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <map>
#include <stdexcept>

namespace cvdeveloper::bench {

namespace {

std::map<std::string, std::string, std::less<>> read_statements() {
    std::map<std::string, std::string, std::less<>> statements;
    std::ifstream file(CVDEVELOPER_BENCH_STATEMENTS);
    constexpr std::string_view name_mark = "-- name: ";
    std::string name;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(name_mark)) {
            name = line.substr(name_mark.size());
        } else if (!line.empty() && !line.starts_with("--")) {
            std::string& text = statements[name];
            text.append(text.empty() ? "" : " ").append(line);
        }
    }
    return statements;
}

}  // namespace

const std::string& statement(std::string_view name) {
    static const auto statements = read_statements();
    const auto found = statements.find(name);
    if (found == statements.end()) {
        throw std::runtime_error("no statement " + std::string(name) + " in statements.sql");
    }
    return found->second;
}

std::string new_key() {
    static unsigned number = 0;
    std::array<char, 37> text{};
    std::snprintf(text.data(), text.size(), "BE4C0000-0000-4000-8000-%06X%06X",
                  static_cast<unsigned>(getpid()) & 0xFFFFFFU, ++number);
    return text.data();
}

std::string human_key(std::string_view prefix, std::int64_t number) {
    constexpr std::size_t width = 10;
    std::string key = std::string(prefix) + std::to_string(number);
    key.append(width - std::min(key.size(), width), ' ');
    return key;
}

std::string standard_rights(std::string_view templates) {
    for (int line = 1; line < 4; ++line) {
        templates.remove_prefix(std::min(templates.find('\n') + 1, templates.size()));
    }
    templates = templates.substr(0, templates.find_first_of("\r\n"));
    return std::string(templates.substr(templates.find('|') + 1));
}

std::string insert_text(std::string_view table, const std::vector<std::string>& columns) {
    std::string text = "INSERT INTO " + std::string(table) + " (";
    std::string places;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        text.append(i == 0 ? "\"" : ", \"").append(columns[i]).append("\"");
        places.append(i == 0 ? ":v" : ", :v").append(std::to_string(i));
    }
    return text + ") VALUES (" + places + ")";
}

void PeerLog::empty_result(std::string_view sql) const {
    std::array<char, 32> stamp{};
    const std::time_t time = std::time(nullptr);
    std::tm local{};
    localtime_r(&time, &local);
    std::strftime(stamp.data(), stamp.size(), "%d.%m.%Y %H:%M:%S", &local);
    std::string line = stamp.data();
    line.append(" - EOF=true in  : SQL: ").append(sql).append("\r\n");
    const int file = open(file_.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0 || write(file, line.data(), line.size()) < 0) {
        throw std::runtime_error(file_ + " cannot be written");
    }
    close(file);
}

}  // namespace cvdeveloper::bench
