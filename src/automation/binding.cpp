#include "cvdeveloper/automation/binding.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"

namespace cvdeveloper::binding {

std::string describe(const Place& place) {
    std::string text(place.operation.name);
    if (place.index < place.operation.parameters.size()) {
        text.append(", Argument ").append(place.operation.parameters[place.index].name);
    }
    return text;
}

namespace {

// Puts an object's default member in its place. What that raises is no failure to convert, unless
// there is no such member.
void take_default_value(Variant& slot, const Place& place) {
    try {
        slot = plain_value(slot);
    } catch (const AutomationError& error) {
        if (error.number() == static_cast<std::int32_t>(RuntimeError::TypeMismatch)) {
            raise(RuntimeError::TypeMismatch, describe(place));
        }
        throw;
    }
}

// Converts unless the slot holds a T already; a failure names operation and argument.
template <class T, class Convert>
T& converted(Variant& slot, const Place& place, const Convert& convert) {
    if (auto* held = slot.get_if<T>()) {
        return *held;
    }
    take_default_value(slot, place);
    try {
        slot = Variant(convert(slot));
    } catch (const AutomationError& error) {
        raise(static_cast<RuntimeError>(error.number()), describe(place));
    }
    return slot.get<T>();
}

}  // namespace

std::string& text_in(Variant& slot, const Place& place) {
    return converted<std::string>(slot, place, [](const Variant& value) { return to_text(value); });
}

bool& boolean_in(Variant& slot, const Place& place) {
    return converted<bool>(slot, place, to_boolean);
}

std::int16_t& int16_in(Variant& slot, const Place& place) {
    return converted<std::int16_t>(slot, place, to_int16);
}

std::int32_t& int32_in(Variant& slot, const Place& place) {
    return converted<std::int32_t>(slot, place, to_int32);
}

double& double_in(Variant& slot, const Place& place) {
    return converted<double>(slot, place, to_double);
}

Date& date_in(Variant& slot, const Place& place) {
    return converted<Date>(slot, place, to_date);
}

ObjectRef object_in(const Variant& slot, const Place& place) {
    if (const auto* held = slot.get_if<ObjectRef>()) {
        return *held;
    }
    try {
        return to_object(slot);
    } catch (const AutomationError& error) {
        raise(static_cast<RuntimeError>(error.number()), describe(place));
    }
}

void raise_wrong_class(const Place& place, std::string_view expected) {
    raise(RuntimeError::TypeMismatch, describe(place) + ", erwartet " + std::string(expected));
}

}  // namespace cvdeveloper::binding
