#include "common/peer.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <map>
#include <random>
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

bool has_random_keys = false;

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
    static std::mt19937_64 numbers{std::random_device{}()};
    using namespace std::chrono;
    // 48 bits of milliseconds and 12 bits of their fraction.
    const auto time = static_cast<std::uint64_t>(
        duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count());
    const std::uint64_t ordered =
        (time / 1'000'000) << 16U | 0x7000U | (time % 1'000'000) * 4096 / 1'000'000;
    const std::uint64_t first =
        has_random_keys ? (numbers() & ~std::uint64_t{0xF000}) | 0x4000U : ordered;
    const std::uint64_t second = numbers();
    std::array<char, 37> text{};
    std::snprintf(text.data(), text.size(), "%08X-%04X-%04X-%04X-%012llX",
                  static_cast<unsigned>(first >> 32U),
                  static_cast<unsigned>(first >> 16U) & 0xFFFFU,
                  static_cast<unsigned>(first) & 0xFFFFU,
                  (static_cast<unsigned>(second >> 48U) & 0x3FFFU) | 0x8000U,
                  static_cast<unsigned long long>(second & 0xFFFFFFFFFFFFU));
    return text.data();
}

void use_random_keys() {
    has_random_keys = true;
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
