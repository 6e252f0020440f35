#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cvdeveloper/host/record_set.h"

namespace cvdeveloper {

using Lines = std::vector<std::string>;

// A value as the tests write it down: 'text', 12, 1,5, #15.11.2026#, Wahr, Null.
std::string written(const Variant& value);

struct Rows {
    std::vector<std::string> columns;
    std::vector<std::vector<Variant>> rows;
};

// One row by its fields: {{"DSN", "K1"}, {"NAME", "Meier"}}.
Rows row(const std::vector<std::pair<std::string, Variant>>& fields);

// A record set whose rows are given, and which writes down every change: "AddNew",
// "Subject = 'Anruf'", "Delete". A field that is set and was not there becomes one. Reading at the
// end is error 3021, an unknown field error 3265.
class ScriptedRecordSet final : public Object, public host::RecordSet {
  public:
    ScriptedRecordSet(std::string name, Rows rows, std::shared_ptr<Lines> log);

    Variant invoke(std::string_view member, InvokeKind kind, Arguments arguments) override;
    [[nodiscard]] std::string_view class_name() const noexcept override { return "Recordset"; }

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

    bool forward_only = false;  // MoveFirst is an error

  private:
    std::vector<Variant>& current();
    [[nodiscard]] std::size_t place(std::string_view name) const;

    std::string name_;
    Rows rows_;
    std::shared_ptr<Lines> log_;
    std::size_t position_ = 0;
};

}  // namespace cvdeveloper
