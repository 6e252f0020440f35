#pragma once

#include "cvdeveloper/automation/guard.h"
#include "cvdeveloper/automation/interface_table.h"
#include "cvdeveloper/automation/object.h"

namespace cvdeveloper {

// An object that answers from its class's interface table.
class LibraryObject : public Object {
  public:
    [[nodiscard]] virtual const InterfaceTable& table() const noexcept = 0;
    [[nodiscard]] std::string_view class_name() const noexcept override;
    Variant invoke(std::string_view member, InvokeKind kind, Arguments arguments) override;
    Variant default_value() override;  // the property with id 0

    // Runs one row of the table: places the arguments, fills in defaults, writes by-reference
    // arguments back on success. Errors: 448, 449, 450 for arguments that do not fit; 13, 6, 94
    // for values that do not convert. The description names operation and argument.
    Variant invoke(const Operation& operation, Arguments arguments);

    // Runs a row on a full list of arguments, converting it in place; Missing ones take their
    // defaults. Afterwards the arguments that the function may change hold what it left there.
    Variant run(const Operation& operation, Variant* slots);

    // One caller at a time, where the object has state that threads could share.
    [[nodiscard]] virtual Guard* guard() noexcept { return nullptr; }
};

// Where arguments belong in a row, and the errors of those that belong nowhere: every way in that
// places arguments itself raises these.
std::size_t place_of_argument(const Operation& operation, std::string_view name);
[[noreturn]] void raise_too_many_arguments(const Operation& operation, std::size_t given);
[[noreturn]] void raise_given_twice(const Operation& operation, std::string_view name);

// Holds a guard; a wait for it gives up the interpreter lock.
class GuardLock {
  public:
    explicit GuardLock(Guard* guard) : guard_(guard) {
        if (guard_ != nullptr) {
            lock();
        }
    }
    GuardLock(const GuardLock&) = delete;
    GuardLock& operator=(const GuardLock&) = delete;
    ~GuardLock() {
        if (guard_ != nullptr) {
            unlock();
        }
    }

  private:
    void lock();
    void unlock();

    Guard* guard_;
};

}  // namespace cvdeveloper
