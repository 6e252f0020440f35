#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

// Names of tables and columns are equal without regard to case, umlauts included.
namespace cvdeveloper::standalone::sql {

std::string folded_name(std::string_view name);
bool equal_names(std::string_view left, std::string_view right) noexcept;

// What a name is looked up by, much quicker than letter by letter. Equal names have equal keys;
// where a key says so, equal keys are equal names.
class NameKey {
  public:
    NameKey() = default;
    explicit NameKey(std::string_view name) noexcept;

    // True for ASCII names of up to 16 letters: nearly all.
    [[nodiscard]] bool says_all() const noexcept { return says_all_; }
    [[nodiscard]] std::size_t hash() const noexcept {
        const std::uint64_t mixed = (first_ ^ std::rotl(last_, 29) ^ size_) * 0x9E3779B97F4A7C15U;
        return static_cast<std::size_t>(mixed ^ mixed >> 32U);
    }
    friend bool operator==(const NameKey& left, const NameKey& right) noexcept = default;

  private:
    // The first and the last eight letters without their case; a shorter name has only the first.
    std::uint64_t first_ = 0;
    std::uint64_t last_ = 0;
    std::uint32_t size_ = 0;
    bool says_all_ = true;
};

struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const noexcept { return NameKey(name).hash(); }
};
struct NameEqual {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const noexcept {
        return equal_names(left, right);
    }
};
template <class T>
using NameMap = std::unordered_map<std::string, T, NameHash, NameEqual>;

// The name with "ae", "oe" and "ue" written as umlauts, as scripts without umlauts mean them
// ("VERTRAEGE_DSN").
std::string with_umlauts(std::string_view name);

enum class NameUse : std::uint8_t { Table, Column };

// How the schema spells its names. The database folds the case of ASCII letters only, so names
// with other letters have to reach it in one spelling: one as a table ("VERTRÄGE"), one as a column
// ("verträge").
class Spelling {
  public:
    // The first spelling of a name stays.
    void add(std::string_view name, NameUse use);

    // The schema's spelling, or the name itself where the schema has no such name or the database
    // folds it well enough. The view lives as long as this object and the argument.
    [[nodiscard]] std::string_view of(std::string_view name, NameUse use) const;

  private:
    struct Entry {
        std::string as_table;
        std::string as_column;
    };
    static std::string_view choose(const Entry& entry, NameUse use) noexcept;

    NameMap<Entry> names_;
};

}  // namespace cvdeveloper::standalone::sql
