#include "automation/nearest_names.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "platform/text.h"

namespace cvdeveloper {

namespace {

std::size_t edit_distance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t replaced = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

}  // namespace

std::string did_you_mean(std::string_view misspelt, std::span<const std::string_view> names) {
    constexpr std::size_t most_names = 3;
    const std::string wanted = lower_case(misspelt);
    const std::size_t limit = std::max<std::size_t>(2, wanted.size() / 3);
    std::vector<std::pair<std::size_t, std::string_view>> near;
    for (const std::string_view name : names) {
        const std::size_t distance = edit_distance(wanted, lower_case(name));
        const std::pair candidate(distance, name);
        if (distance <= limit && std::ranges::find(near, candidate) == near.end()) {
            near.push_back(candidate);
        }
    }
    std::ranges::stable_sort(near, {}, &std::pair<std::size_t, std::string_view>::first);
    if (near.empty()) {
        return {};
    }
    // Only names about as near as the nearest one are worth telling.
    const std::size_t best = near.front().first;
    std::string text = ". Meinten Sie ";
    for (std::size_t i = 0; i < near.size() && i < most_names && near[i].first <= best + 1; ++i) {
        if (i > 0) {
            text += " oder ";
        }
        text += near[i].second;
    }
    return text + "?";
}

}  // namespace cvdeveloper
