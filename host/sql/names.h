#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

// Names of tables and columns are equal without regard to case, umlauts included.
namespace cvdeveloper::standalone::sql {

std::string folded_name(std::string_view name);
bool equal_names(std::string_view left, std::string_view right) noexcept;
std::size_t hash_name(std::string_view name) noexcept;

struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const noexcept { return hash_name(name); }
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
