#include "native_class.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <unordered_map>

#include "dispatch_entries.h"
#include "identifiers.h"
#include "module.h"

namespace cvdeveloper::com {

namespace {

constexpr std::size_t slots_of_dispatch = 7;

const ClassIds* ids_of(std::string_view class_name) noexcept {
    if (!this_module.has_type_library) {
        return nullptr;
    }
    const auto* found = std::ranges::find(class_ids, class_name, &ClassIds::name);
    return found == std::end(class_ids) ? nullptr : found;
}

}  // namespace

NativeClass::NativeClass(const InterfaceTable& table)
    : table_(&table), interface_id_(IID_IDispatch), is_dual_(false) {
    for (const NativeEntry entry : dispatch_entries()) {
        vtable_.push_back(entry);
    }
    if (const ClassIds* ids = ids_of(table.class_name())) {
        interface_id_ = identifier(ids->interface_id);
        is_dual_ = true;
    }
    for (const Operation* operation : table.operations()) {
        if (is_dual_) {
            vtable_.push_back(operation->binding.native(*operation));
        }
        const auto id = static_cast<std::size_t>(operation->id);
        by_id_.resize(std::max(by_id_.size(), id + 1));
        Members& members = by_id_[id];
        (operation->kind == OperationKind::Put ? members.write : members.read) = operation;
    }
    // A collection's items are what it stands for.
    if (is_collection() && by_id_[DISPID_VALUE].read == nullptr) {
        by_id_[DISPID_VALUE] = members(id_of("Item"));
    }
}

const NativeClass& NativeClass::of(const InterfaceTable& table) {
    static std::mutex mutex;
    static std::unordered_map<const InterfaceTable*, std::unique_ptr<const NativeClass>> all;
    const std::lock_guard lock(mutex);
    std::unique_ptr<const NativeClass>& known = all[&table];
    if (!known) {
        known = std::make_unique<const NativeClass>(table);
    }
    return *known;
}

NativeClass::Members NativeClass::members(DISPID id) const noexcept {
    if (id < 0 || static_cast<std::size_t>(id) >= by_id_.size()) {
        return {};
    }
    return by_id_[static_cast<std::size_t>(id)];
}

DISPID NativeClass::id_of(std::string_view name) const {
    const Operation* operation = table_->find(name, InvokeKind::GetOrCall);
    if (operation == nullptr) {
        operation = table_->find(name, InvokeKind::Put);
    }
    return operation == nullptr ? DISPID_UNKNOWN : operation->id;
}

bool NativeClass::is_collection() const noexcept {
    const Operation* item = table_->find("Item", InvokeKind::GetOrCall);
    return item != nullptr && item->parameters.size() == 1 && table_->has_member("Count");
}

const Operation* NativeClass::operation_of(NativeEntry entry) const noexcept {
    const auto found =
        std::find(vtable_.begin() + slots_of_dispatch, vtable_.end(), entry) - vtable_.begin();
    const auto slot = static_cast<std::size_t>(found);
    return slot < vtable_.size() ? table_->operations()[slot - slots_of_dispatch] : nullptr;
}

}  // namespace cvdeveloper::com
