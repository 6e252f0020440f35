#include "support/scripted_record_set.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/text.h"

namespace cvdeveloper {

std::string written(const Variant& value) {
    switch (value.type()) {
        case VariantType::Null:
            return "Null";
        case VariantType::Empty:
            return "Empty";
        case VariantType::String:
            return "'" + value.get<std::string>() + "'";
        case VariantType::Date:
            return "#" + to_text(value) + "#";
        default:
            return to_text(value);
    }
}

Rows row(const std::vector<std::pair<std::string, Variant>>& fields) {
    Rows rows;
    rows.rows.emplace_back();
    for (const auto& [name, value] : fields) {
        rows.columns.push_back(name);
        rows.rows.back().push_back(value);
    }
    return rows;
}

ScriptedRecordSet::ScriptedRecordSet(std::string name, Rows rows, std::shared_ptr<Lines> log)
    : name_(std::move(name)), rows_(std::move(rows)), log_(std::move(log)) {}

Variant ScriptedRecordSet::invoke(std::string_view member, InvokeKind, Arguments) {
    raise(RuntimeError::NoSuchMember, member);
}

bool ScriptedRecordSet::at_end() {
    return position_ >= rows_.rows.size();
}

void ScriptedRecordSet::move_first() {
    if (forward_only) {
        throw AutomationError(3219, "Recordset", "nur vorwärts");
    }
    position_ = 0;
}

void ScriptedRecordSet::move_next() {
    ++position_;
}

void ScriptedRecordSet::add_new() {
    log_->push_back("AddNew");
    rows_.rows.emplace_back(rows_.columns.size(), Variant(Null{}));
    position_ = rows_.rows.size() - 1;
}

void ScriptedRecordSet::remove() {
    current();
    log_->push_back("Delete " + std::to_string(position_ + 1));
}

std::int32_t ScriptedRecordSet::field_count() {
    return static_cast<std::int32_t>(rows_.columns.size());
}

std::string ScriptedRecordSet::field_name(std::int32_t position) {
    return rows_.columns.at(static_cast<std::size_t>(position));
}

Variant ScriptedRecordSet::value(std::string_view name) {
    const std::vector<Variant>& fields = current();
    const std::size_t index = place(name);
    if (index == rows_.columns.size()) {
        throw AutomationError(3265, "Recordset", "kein Feld '" + std::string(name) + "'");
    }
    return fields[index];
}

Variant ScriptedRecordSet::value_at(std::int32_t position) {
    return current().at(static_cast<std::size_t>(position));
}

void ScriptedRecordSet::set_value(std::string_view name, Variant value) {
    current();
    log_->push_back(std::string(name) + " = " + written(value));
    const std::size_t index = place(name);
    if (index == rows_.columns.size()) {
        rows_.columns.emplace_back(name);
        for (auto& fields : rows_.rows) {
            fields.emplace_back(Null{});
        }
    }
    current()[index] = std::move(value);
}

std::vector<Variant>& ScriptedRecordSet::current() {
    if (at_end()) {
        throw AutomationError(3021, "Recordset", "kein Datensatz in " + name_);
    }
    return rows_.rows[position_];
}

std::size_t ScriptedRecordSet::place(std::string_view name) const {
    std::size_t index = 0;
    while (index < rows_.columns.size() && !equal_ignoring_case(rows_.columns[index], name)) {
        ++index;
    }
    return index;
}

}  // namespace cvdeveloper
