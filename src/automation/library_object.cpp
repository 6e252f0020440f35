#include "cvdeveloper/automation/library_object.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "automation/nearest_names.h"
#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/text.h"

namespace cvdeveloper {

std::size_t place_of_argument(const Operation& operation, std::string_view name) {
    const auto found = std::ranges::find_if(operation.parameters, [&](const Parameter& parameter) {
        return equal_ignoring_case(parameter.name, name);
    });
    if (found == operation.parameters.end()) {
        std::vector<std::string_view> names;
        for (const Parameter& parameter : operation.parameters) {
            names.push_back(parameter.name);
        }
        raise(RuntimeError::NamedArgumentNotFound, std::string(operation.name) + ", Argument " +
                                                       std::string(name) +
                                                       did_you_mean(name, names));
    }
    return static_cast<std::size_t>(found - operation.parameters.begin());
}

void raise_too_many_arguments(const Operation& operation, std::size_t given) {
    const std::size_t most = operation.parameters.size();
    raise(RuntimeError::WrongArgumentCount,
          std::string(operation.name) + " nimmt höchstens " + std::to_string(most) +
              (most == 1 ? " Argument, " : " Argumente, ") + std::to_string(given) +
              (given == 1 ? " wurde übergeben" : " wurden übergeben"));
}

void raise_given_twice(const Operation& operation, std::string_view name) {
    raise(RuntimeError::NamedArgumentNotFound, std::string(operation.name) + ", Argument " +
                                                   std::string(name) + " ist doppelt angegeben");
}

std::string_view LibraryObject::class_name() const noexcept {
    return table().class_name();
}

Variant LibraryObject::invoke(std::string_view member, InvokeKind kind, Arguments arguments) {
    const InterfaceTable& members = table();
    const Operation* operation = members.find(member, kind);
    if (operation == nullptr) {
        members.raise_no_such_member(member);
    }
    return invoke(*operation, arguments);
}

Variant LibraryObject::invoke(const Operation& operation, Arguments arguments) {
    const std::size_t count = operation.parameters.size();
    const std::size_t given = arguments.values.size();
    if (given > count) {
        raise_too_many_arguments(operation, given);
    }
    // Values handed over by value are ours to convert in place; a caller's variable is not.
    if (given == count && arguments.names.empty() && arguments.by_reference == 0) {
        return run(operation, arguments.values.data());
    }

    constexpr std::size_t few = 8;
    std::array<Variant, few> few_slots;
    std::vector<Variant> many_slots(count > few ? count : 0);
    const std::span<Variant> slots(count > few ? many_slots.data() : few_slots.data(), count);
    std::ranges::fill(slots, Variant(Missing{}));

    const std::size_t positional = given - arguments.names.size();
    std::array<std::size_t, 32> places{};
    for (std::size_t i = 0; i < given; ++i) {
        std::size_t place = i;
        if (i >= positional) {
            const std::string_view name = arguments.names[i - positional];
            place = place_of_argument(operation, name);
            if (!slots[place].is<Missing>()) {
                raise_given_twice(operation, name);
            }
        }
        places[i] = place;
        if (arguments.is_by_reference(i)) {
            slots[place] = arguments.values[i];
        } else {
            slots[place] = std::move(arguments.values[i]);
        }
    }

    Variant result = run(operation, slots.data());
    for (std::size_t i = 0; i < given; ++i) {
        if (arguments.is_by_reference(i) && ((operation.binding.writes >> places[i]) & 1U) != 0) {
            arguments.values[i] = std::move(slots[places[i]]);
        }
    }
    return result;
}

Variant LibraryObject::default_value() {
    const auto rows = table().operations();
    if (rows.empty() || rows.front()->id != 0 || rows.front()->kind != OperationKind::Get ||
        !rows.front()->parameters.empty()) {
        raise(RuntimeError::TypeMismatch);
    }
    return invoke(*rows.front(), {});
}

Variant LibraryObject::run(const Operation& operation, Variant* slots) {
    for (std::size_t i = 0; i < operation.parameters.size(); ++i) {
        if (slots[i].is<Missing>()) {
            const Parameter& parameter = operation.parameters[i];
            if (parameter.default_value.required()) {
                raise(RuntimeError::ArgumentNotOptional,
                      std::string(operation.name) + ", Argument " + std::string(parameter.name));
            }
            slots[i] = parameter.default_value.value();
        }
    }
    const GuardLock lock(guard());
    Variant result;
    operation.binding.call(operation, *this, slots, result);
    return result;
}

void GuardLock::lock() {
    if (!guard_->try_lock()) {
        const BlockingScope waiting;
        guard_->lock();
    }
}

void GuardLock::unlock() {
    guard_->unlock();
}

}  // namespace cvdeveloper
