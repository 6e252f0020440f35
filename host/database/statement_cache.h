#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "host/database/database.h"

namespace cvdeveloper::standalone {

struct CacheStatistics {
    std::uint64_t hits = 0;
    std::uint64_t misses = 0;
    std::uint64_t evictions = 0;

    friend CacheStatistics operator+(const CacheStatistics& one, const CacheStatistics& other) {
        return {one.hits + other.hits, one.misses + other.misses, one.evictions + other.evictions};
    }
};

// Prepared statements by their text, with whatever the caller keeps beside one; the least recently
// used go first.
template <class Beside>
class StatementCache {
  public:
    struct Entry {
        std::unique_ptr<Statement> statement;
        Beside beside;
    };

    explicit StatementCache(std::size_t capacity) : capacity_(capacity) {}

    // The entry for a text, or nullptr. Entries are valid until the next one is added.
    Entry* find(std::string_view text) {
        const auto found = by_text_.find(text);
        if (found == by_text_.end()) {
            return nullptr;
        }
        ++statistics_.hits;
        entries_.splice(entries_.begin(), entries_, found->second);
        return &found->second->entry;
    }

    // For a text that has no entry yet.
    Entry& add(std::string_view text, Entry entry) {
        ++statistics_.misses;
        entries_.push_front(Node{std::string(text), std::move(entry)});
        by_text_.emplace(entries_.front().text, entries_.begin());
        if (entries_.size() > capacity_) {
            ++statistics_.evictions;
            by_text_.erase(entries_.back().text);
            entries_.pop_back();
        }
        return entries_.front().entry;
    }

    // The entry for a text; make() gives one that is not there yet.
    template <class Make>
    Entry& get(std::string_view text, const Make& make) {
        Entry* const found = find(text);
        return found != nullptr ? *found : add(text, make());
    }

    [[nodiscard]] const CacheStatistics& statistics() const noexcept { return statistics_; }
    [[nodiscard]] std::size_t size() const noexcept { return entries_.size(); }

  private:
    struct Node {
        std::string text;
        Entry entry;
    };
    std::size_t capacity_;
    std::list<Node> entries_;
    std::unordered_map<std::string_view, typename std::list<Node>::iterator> by_text_;
    CacheStatistics statistics_;
};

}  // namespace cvdeveloper::standalone
