#include "host/keys.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <set>
#include <string>

namespace cvdeveloper::standalone {
namespace {

constexpr std::size_t random_part = 19;
constexpr std::size_t key_size = 36;
constexpr int keys_of_each = 20;

void write_keys(int descriptor) {
    for (int i = 0; i < keys_of_each; ++i) {
        const std::string key = new_key();
        if (write(descriptor, key.data(), key.size()) != static_cast<ssize_t>(key.size())) {
            return;
        }
    }
}

// Random numbers are drawn in store: two processes that hand out the same store would make keys
// that differ in nothing but their time.
TEST(Keys, OfAForkedProcessHaveRandomPartsOfTheirOwn) {
    new_key();
    std::array<int, 2> pipe_ends{};
    ASSERT_EQ(pipe(pipe_ends.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        write_keys(pipe_ends[1]);
        _exit(0);
    }
    std::set<std::string> parts;
    for (int i = 0; i < keys_of_each; ++i) {
        parts.insert(new_key().substr(random_part));
    }
    close(pipe_ends[1]);
    std::array<char, key_size> key{};
    int received = 0;
    while (read(pipe_ends[0], key.data(), key.size()) == static_cast<ssize_t>(key.size())) {
        parts.emplace(key.begin() + random_part, key.end());
        ++received;
    }
    close(pipe_ends[0]);
    waitpid(child, nullptr, 0);
    EXPECT_EQ(received, keys_of_each);
    EXPECT_EQ(parts.size(), 2U * keys_of_each);
}

}  // namespace
}  // namespace cvdeveloper::standalone
