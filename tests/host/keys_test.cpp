#include "host/keys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <regex>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace cvdeveloper::standalone {
namespace {

TEST(Keys, AreCapitalsAndDigitsInFiveGroupsOfVersion7) {
    static const std::regex form(
        "[0-9A-F]{8}-[0-9A-F]{4}-7[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}");
    for (int i = 0; i < 100; ++i) {
        EXPECT_TRUE(std::regex_match(new_key(), form));
    }
}

TEST(Keys, SortByTheTimeOfTheirMaking) {
    std::vector<std::string> keys;
    for (int i = 0; i < 100; ++i) {
        keys.push_back(new_key());
        std::this_thread::sleep_for(std::chrono::microseconds(1));
    }
    EXPECT_TRUE(std::ranges::is_sorted(keys));
}

// Each thread has random numbers of its own in store.
TEST(Keys, DifferInTheirRandomPartsAcrossThreads) {
    std::array<std::vector<std::string>, 4> made;
    std::vector<std::thread> threads;
    for (auto& keys : made) {
        threads.emplace_back([&keys] {
            for (int i = 0; i < 1000; ++i) {
                keys.push_back(new_key().substr(19));
            }
        });
    }
    std::set<std::string> all;
    for (std::size_t i = 0; i < threads.size(); ++i) {
        threads[i].join();
        all.insert(made[i].begin(), made[i].end());
    }
    EXPECT_EQ(all.size(), 4000U);
}

}  // namespace
}  // namespace cvdeveloper::standalone
