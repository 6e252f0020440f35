#include "cvdeveloper/automation/interface_table.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/text.h"

namespace cvdeveloper {

Variant Default::value() const {
    return std::visit(
        [](const auto& value) -> Variant {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::monostate>) {
                return Missing{};
            } else {
                return Variant(value);
            }
        },
        value_);
}

std::size_t Operation::required_arguments() const {
    const auto first_optional = std::ranges::find_if_not(
        parameters, [](const Parameter& p) { return p.default_value.required(); });
    return static_cast<std::size_t>(first_optional - parameters.begin());
}

InterfaceTable::InterfaceTable(std::string_view class_name, std::string_view help,
                               std::vector<TopicRows> topics)
    : class_name_(class_name), help_(help), topics_(std::move(topics)) {
    for (const TopicRows& topic : topics_) {
        for (const Operation& operation : topic.operations) {
            ordered_.push_back(&operation);
            Rows& rows = by_name_[lower_case(operation.name)];
            (operation.kind == OperationKind::Put ? rows.write : rows.read) = &operation;
        }
    }
    std::ranges::stable_sort(ordered_, {}, [](const Operation* operation) {
        return std::pair(operation->id, operation->kind);
    });
}

const Operation* InterfaceTable::find(std::string_view name, InvokeKind kind) const {
    const auto found = by_name_.find(lower_case(name));
    if (found == by_name_.end()) {
        return nullptr;
    }
    const Rows& rows = found->second;
    if (kind == InvokeKind::Put) {
        return rows.write;
    }
    const bool fits = rows.read != nullptr &&
                      (kind == InvokeKind::GetOrCall ||
                       (kind == InvokeKind::Get) == (rows.read->kind == OperationKind::Get));
    return fits ? rows.read : nullptr;
}

bool InterfaceTable::has_member(std::string_view name) const {
    return by_name_.contains(lower_case(name));
}

void InterfaceTable::raise_no_such_member(std::string_view name) const {
    std::vector<std::string_view> names;
    names.reserve(ordered_.size());
    for (const Operation* operation : ordered_) {
        names.push_back(operation->name);
    }
    cvdeveloper::raise_no_such_member(class_name_, name, names);
}

}  // namespace cvdeveloper
