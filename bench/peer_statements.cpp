#include "peer_statements.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <ctime>
#include <stdexcept>

namespace cvdeveloper::bench {

void check(int result, sqlite3* database) {
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
}

Statement prepare(sqlite3* database, const char* text) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v3(database, text, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr),
          database);
    return {statement, &sqlite3_finalize};
}

void bind(sqlite3_stmt* statement, int place, std::string_view text) {
    sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()),
                      SQLITE_TRANSIENT);
}

std::vector<std::string> run(sqlite3* database, const Statement& statement) {
    std::vector<std::string> values;
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) {
        for (int i = 0; i < sqlite3_column_count(statement.get()); ++i) {
            const auto* text = sqlite3_column_text(statement.get(), i);
            values.emplace_back(text == nullptr ? "" : reinterpret_cast<const char*>(text));
        }
    }
    check(result, database);
    sqlite3_reset(statement.get());
    return values;
}

std::string new_key() {
    static int number = 0;
    std::array<char, 37> text{};
    std::snprintf(text.data(), text.size(), "BE4C0000-0000-4000-8000-%06X%06X",
                  static_cast<unsigned>(getpid()) & 0xFFFFFFU, static_cast<unsigned>(++number));
    return text.data();
}

void append_line(const std::string& file, const std::string& message) {
    std::array<char, 32> stamp{};
    const std::time_t time = std::time(nullptr);
    std::tm local{};
    localtime_r(&time, &local);
    std::strftime(stamp.data(), stamp.size(), "%d.%m.%Y %H:%M:%S", &local);
    const std::string line =
        std::string(stamp.data()) + " - EOF=true in  : SQL: " + message + "\r\n";
    const int descriptor = open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    const auto written = write(descriptor, line.data(), line.size());
    static_cast<void>(written);
    close(descriptor);
}

}  // namespace cvdeveloper::bench
