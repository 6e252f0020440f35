#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/host/record_set.h"
#include "host/database/rows.h"
#include "host/recordset/shape.h"

namespace cvdeveloper::standalone {

enum class RowState : std::uint8_t {
    Unchanged,
    Added,
    Changed,
    Deleted,
    Gone,  // deleted in the database, or added and deleted without being saved
};

// A value that the host gives a column of a saved row by itself.
struct HostValue {
    std::size_t row;
    std::size_t column;               // of the table
    std::optional<std::string> text;  // nothing is null
};

// What writing a record set's changes has left in the database.
struct SavedChanges {
    std::vector<std::int64_t> versions;  // the rows' new STAMPs, in the changes' order
    std::vector<HostValue> host_values;
};

// A complete record set. Its rows were read when the statement ran; changes stay here until the
// session writes them.
class ClientRecordSet final : public LibraryObject, public host::RecordSet {
  public:
    ClientRecordSet(std::shared_ptr<const Shape> shape, Rows rows);

    bool at_end() override;
    void move_first() override;
    void move_next() override;
    void add_new() override;
    void remove() override;
    std::int32_t field_count() override;
    std::string field_name(std::int32_t position) override;
    Variant value(std::string_view name) override;
    Variant value_at(std::int32_t position) override;
    void set_value(std::string_view name, Variant value) override;
    void copy_fields(host::RecordSet& source, std::string_view excluded) override;

    // What script writers use besides.
    bool at_begin();
    void move_previous();
    void move_last();
    std::int32_t record_count();
    void update();  // changes are kept as they are made; writing them is the session's
    void close();
    // All fields, or one by name or position.
    ObjectRef fields(const Variant& name_or_position);
    ObjectRef item(const Variant& name_or_position);

    [[nodiscard]] const InterfaceTable& table() const noexcept override;
    [[nodiscard]] Guard* guard() noexcept override;

    // For Fields, Field and the session.
    struct Change {
        std::size_t row;
        Row original;  // as it was read; empty for an added one
    };
    [[nodiscard]] const Shape& shape() const noexcept { return *shape_; }
    [[nodiscard]] std::span<const Change> changes() const noexcept { return changes_; }
    [[nodiscard]] RowState state(std::size_t row) const noexcept;
    [[nodiscard]] Row cells(std::size_t row) const noexcept { return rows_[row]; }
    // All changes are in the database.
    void mark_saved(const SavedChanges& saved);

    [[nodiscard]] std::size_t position_of(const Variant& name_or_position) const;
    [[nodiscard]] const Cell& current_cell(std::size_t position) const {
        require_current_row();
        return rows_[at_][position];
    }
    // The same, or nullptr where there is no current row.
    [[nodiscard]] const Cell* current_cell_if_any(std::size_t position) const noexcept {
        return is_on_row() ? &rows_[at_][position] : nullptr;
    }
    void set_at(std::size_t position, const Variant& value);

  private:
    [[nodiscard]] std::size_t position_of(std::string_view name) const;
    [[nodiscard]] bool is_visible(std::size_t row) const noexcept;
    // A closed record set has no rows.
    [[nodiscard]] bool is_on_row() const noexcept { return !before_first_ && at_ < rows_.size(); }
    void require_open() const;
    void require_current_row() const {
        if (!is_on_row()) {
            raise_no_current_row();
        }
    }
    [[noreturn]] void raise_no_current_row() const;
    // Which fields of record sets of one shape go where, found once for all rows.
    struct CopyPlan {
        struct Step {
            std::size_t from;
            std::size_t to;  // Shape::npos where there is no such field
            bool same_column;
        };
        const Shape* source = nullptr;
        std::string excluded;
        std::vector<Step> steps;
    };

    void plan_copy(const Shape& source, std::string_view excluded);
    void require_writable(std::size_t position) const;
    [[noreturn]] void raise_not_writable(std::size_t position) const;
    void write(std::size_t position, Cell written);
    void show_host_value(const HostValue& value);
    void note_change(RowState state, Row original);

    std::shared_ptr<const Shape> shape_;
    Rows rows_;
    std::size_t at_ = 0;
    bool before_first_ = false;
    bool is_open_ = true;
    std::vector<RowState> states_;  // empty until the first change
    std::vector<Change> changes_;
    CopyPlan copy_plan_;
};

}  // namespace cvdeveloper::standalone
