#include "cvdeveloper/automation/interface_table.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "cvdeveloper/automation/runtime_errors.h"

namespace cvdeveloper {

namespace {

// Without a branch: which letters are capitals cannot be foreseen.
constexpr char folded(char c) noexcept {
    const auto letter = static_cast<unsigned char>(c);
    const auto capital = static_cast<unsigned char>(letter - 'A') < 26U ? 1U : 0U;
    return static_cast<char>(letter | (capital << 5U));
}

}  // namespace

std::size_t InterfaceTable::FoldedHash::operator()(std::string_view name) const noexcept {
    std::uint64_t hash = 14695981039346656037U;
    for (const char c : name) {
        hash = (hash ^ static_cast<unsigned char>(folded(c))) * 1099511628211U;
    }
    return static_cast<std::size_t>(hash);
}

bool InterfaceTable::FoldedEqual::operator()(std::string_view left,
                                             std::string_view right) const noexcept {
    return std::ranges::equal(left, right, {}, folded, folded);
}

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
            Rows& rows = by_name_[operation.name];
            (operation.kind == OperationKind::Put ? rows.write : rows.read) = &operation;
        }
    }
    std::ranges::stable_sort(ordered_, {}, [](const Operation* operation) {
        return std::pair(operation->id, operation->kind);
    });
}

const Operation* InterfaceTable::find(std::string_view name, InvokeKind kind) const {
    const auto found = by_name_.find(name);
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
    return by_name_.contains(name);
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
