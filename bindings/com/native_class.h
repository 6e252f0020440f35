#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <string_view>
#include <vector>

#include "cvdeveloper/automation/interface_table.h"

namespace cvdeveloper::com {

// What the system needs of a class, made once from its interface table: the vtable, and the rows by
// the ids that late-bound callers use.
class NativeClass {
  public:
    explicit NativeClass(const InterfaceTable& table);

    // The class of a table; lives as long as the process.
    static const NativeClass& of(const InterfaceTable& table);

    struct Members {
        const Operation* read = nullptr;  // the method, or the reading of a property
        const Operation* write = nullptr;
    };

    [[nodiscard]] const InterfaceTable& table() const noexcept { return *table_; }
    [[nodiscard]] const NativeEntry* vtable() const noexcept { return vtable_.data(); }
    // The dual interface's id; IDispatch where the type library does not have the class.
    [[nodiscard]] const IID& interface_id() const noexcept { return interface_id_; }
    [[nodiscard]] bool is_dual() const noexcept { return is_dual_; }

    // The rows of an id; none where there is no such id.
    [[nodiscard]] Members members(DISPID id) const noexcept;
    // DISPID_UNKNOWN where there is no such member.
    [[nodiscard]] DISPID id_of(std::string_view name) const;
    // Whether a caller can go through the object's items: it has a Count and an Item.
    [[nodiscard]] bool is_collection() const noexcept;
    // The row of an entry of the vtable, or nullptr.
    [[nodiscard]] const Operation* operation_of(NativeEntry entry) const noexcept;

  private:
    const InterfaceTable* table_;
    std::vector<NativeEntry> vtable_;
    std::vector<Members> by_id_;
    IID interface_id_;
    bool is_dual_;
};

}  // namespace cvdeveloper::com
