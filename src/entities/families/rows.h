#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

// The families: what differs from one kind of record to the next. Each row times the operation
// kinds that it offers gives the family's operations.
namespace cvdeveloper::families {

enum class Kind : std::uint8_t {
    Find,
    FindDsn,
    FindByDsn,
    FindByKennung,
    FindDsnByKennung,
    Delete,
    DeleteByDsn,
    Update,
    Show,
    ShowDsn,
    MerkmalAdd,
    MerkmalDel,
    MerkmalSwitch,
    MerkmalContains,
    MerkmalStd,
    MerkmalGet,
    MerkmalCopy,
    DetailDelete,
    DetailSet,
    DetailGet,
    DetailSetOption,
    DetailGetOption,
    DetailCopy,
    FindByName,
    FindDsnByName,
    FindByNameWithin,  // names are unique within an owner only: its key comes first
    FindDsnByNameWithin,
    NameByDsn,
    LastNameOfList,
    NamesOfList,
};

class KindSet {
  public:
    constexpr KindSet() = default;
    constexpr KindSet(std::initializer_list<Kind> kinds) {
        for (const Kind kind : kinds) {
            bits_ |= bit(kind);
        }
    }
    [[nodiscard]] constexpr bool contains(Kind kind) const { return (bits_ & bit(kind)) != 0; }
    friend constexpr KindSet operator|(KindSet left, KindSet right) {
        left.bits_ |= right.bits_;
        return left;
    }

  private:
    static constexpr std::uint64_t bit(Kind kind) {
        return std::uint64_t{1} << static_cast<unsigned>(kind);
    }
    std::uint64_t bits_ = 0;
};

struct Family {
    std::int32_t block;  // an operation's id is the block plus its kind's offset
    std::string_view prefix;
    std::string_view table;
    std::string_view form = {};  // the host's form that shows the records
    KindSet kinds;

    // Some kinds have always spelled the table differently; scripts' logs and hosts rely on it.
    std::string_view other_table = {};
    KindSet other_table_kinds = {};

    std::string_view name_column = {};
    std::string_view name_column_by_key = {};  // where the reverse look-up spells it differently
    std::string_view owner_column = {};        // names are looked up within this column's key
    // What a form's condition is put behind, and closed with ")", where the form joins other
    // tables and a plain condition would be ambiguous.
    std::string_view form_condition = {};
    bool drops_detail_word = false;  // Details_Set, not Details_Detail_Set

    // Names of arguments.
    std::string_view key_argument = "strDsn";
    std::string_view record_set_argument;
    std::string_view name_argument = {};

    // Words for the help texts.
    std::string_view article;
    std::string_view record;
    std::string_view records;
    std::string_view condition;  // for examples
};

extern const Family AKT;
extern const Family OBJ;
extern const Family PROJEKTE;
extern const Family ANF;
extern const Family AKTEN;
extern const Family VERTRAEGE;
extern const Family AD;
extern const Family Details;
extern const Family MKM;
extern const Family EMSK;
extern const Family FldArt;
extern const Family FldArtOp;
extern const Family AKTART;

// Each family has a block of ids; the blocks follow each other.
inline constexpr std::int32_t first_block = 1000;
inline constexpr std::int32_t block_size = 100;
inline constexpr std::size_t family_count = 13;

// In ascending block.
std::span<const Family* const> all() noexcept;

// The family that an operation's id belongs to.
const Family& family_of(std::int32_t id) noexcept;

// The table as an operation kind spells it.
constexpr std::string_view table_for(Kind kind, const Family& family) {
    return family.other_table_kinds.contains(kind) ? family.other_table : family.table;
}

}  // namespace cvdeveloper::families
