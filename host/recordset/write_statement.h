#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/database/catalog.h"

namespace cvdeveloper::standalone {

// A statement that writes one row: what it does, to which columns of which table. Its key says the
// same as its text in a fraction of the time, so that the text is only made to be prepared.
class WriteStatement {
  public:
    enum class Action : char { Insert = 'I', Update = 'U', Delete = 'D' };
    // What an update or delete does about the row's STAMP.
    enum class Version : char {
        None = '-',     // nothing: the table has none
        Checked = '=',  // the row must have the one that was read
        Raised = '+',   // others who have read the row must notice this write
    };

    // Starts anew, without columns.
    void begin(Action action, const Table& table, Version version = Version::None);
    // The statement's next parameter is the column's value. Its last ones are, where it has them,
    // the new version, the key and the version that was read.
    void add(std::size_t column) { key_.push_back(static_cast<std::uint16_t>(column)); }

    // Valid until the next call of begin or add.
    [[nodiscard]] std::string_view key() const noexcept {
        return {reinterpret_cast<const char*>(key_.data()), key_.size() * sizeof key_[0]};
    }
    [[nodiscard]] std::string text() const;

  private:
    // Calls use() with the columns' names in quotes.
    template <class Use>
    void for_each_column(const Use& use) const;
    [[nodiscard]] std::string insert_text() const;
    [[nodiscard]] std::string update_text() const;
    [[nodiscard]] std::string condition() const;

    Action action_ = Action::Insert;
    Version version_ = Version::None;
    const Table* table_ = nullptr;
    // Action, version, the table's name, and the columns.
    std::vector<std::uint16_t> key_;
    std::size_t begin_of_columns_ = 0;
};

}  // namespace cvdeveloper::standalone
