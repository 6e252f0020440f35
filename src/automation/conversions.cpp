#include "cvdeveloper/automation/conversions.h"

#include <cmath>
#include <limits>

#include "cvdeveloper/automation/object.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/regional.h"

namespace cvdeveloper {

namespace {

// Nothing is no object.
bool is_object(const Variant& value) {
    const auto* object = value.get_if<ObjectRef>();
    return object != nullptr && *object;
}

[[noreturn]] void raise_no_value(const Variant& value) {
    raise(value.is<Null>() ? RuntimeError::InvalidUseOfNull : RuntimeError::TypeMismatch);
}

template <class Integer>
Integer to_integer(const Variant& value) {
    // Midpoints go to the even neighbour, as everywhere in automation.
    const double number = std::nearbyint(to_double(value));
    if (!(number >= std::numeric_limits<Integer>::min() &&
          number <= std::numeric_limits<Integer>::max())) {
        raise(RuntimeError::Overflow);
    }
    return static_cast<Integer>(number);
}

}  // namespace

Variant plain_value(Variant value) {
    // Objects of scripts can give themselves, or each other.
    constexpr int deepest = 16;
    for (int depth = 0; depth < deepest; ++depth) {
        if (!is_object(value)) {
            return value;
        }
        value = ObjectRef(value.get<ObjectRef>())->default_value();
    }
    raise(RuntimeError::TypeMismatch);
}

std::string to_text(const Variant& value) {
    switch (value.type()) {
        case VariantType::Empty:
            return {};
        case VariantType::Boolean:
            return regional::boolean_text(value.get<bool>());
        case VariantType::Int16:
            return std::to_string(value.get<std::int16_t>());
        case VariantType::Int32:
            return std::to_string(value.get<std::int32_t>());
        case VariantType::Double:
            return regional::number_text(value.get<double>());
        case VariantType::Date:
            return regional::general_date(value.get<Date>());
        case VariantType::String:
            return value.get<std::string>();
        default:
            if (is_object(value)) {
                return to_text(plain_value(value));
            }
            raise_no_value(value);
    }
}

std::string to_text(Variant&& value) {
    if (auto* text = value.get_if<std::string>()) {
        return std::move(*text);
    }
    return to_text(static_cast<const Variant&>(value));
}

std::string joined_text(Variant&& value) {
    return value.is<Null>() ? std::string() : to_text(std::move(value));
}

bool to_boolean(const Variant& value) {
    if (const auto* flag = value.get_if<bool>()) {
        return *flag;
    }
    if (is_object(value)) {
        return to_boolean(plain_value(value));
    }
    if (const auto* text = value.get_if<std::string>()) {
        if (const auto flag = regional::parse_boolean(*text)) {
            return *flag;
        }
    }
    return to_double(value) != 0;
}

std::int16_t to_int16(const Variant& value) {
    if (const auto* number = value.get_if<std::int16_t>()) {
        return *number;
    }
    return to_integer<std::int16_t>(value);
}

std::int32_t to_int32(const Variant& value) {
    if (const auto* number = value.get_if<std::int32_t>()) {
        return *number;
    }
    return to_integer<std::int32_t>(value);
}

double to_double(const Variant& value) {
    switch (value.type()) {
        case VariantType::Empty:
            return 0;
        case VariantType::Boolean:
            return value.get<bool>() ? -1 : 0;
        case VariantType::Int16:
            return value.get<std::int16_t>();
        case VariantType::Int32:
            return value.get<std::int32_t>();
        case VariantType::Double:
            return value.get<double>();
        case VariantType::Date:
            return value.get<Date>().days;
        case VariantType::String:
            if (const auto number = regional::parse_number(value.get<std::string>())) {
                return *number;
            }
            raise(RuntimeError::TypeMismatch);
        default:
            if (is_object(value)) {
                return to_double(plain_value(value));
            }
            raise_no_value(value);
    }
}

Date to_date(const Variant& value) {
    if (const auto* date = value.get_if<Date>()) {
        return *date;
    }
    if (is_object(value)) {
        return to_date(plain_value(value));
    }
    const auto* const text = value.get_if<std::string>();
    if (text != nullptr) {
        if (const auto date = regional::parse_date(*text)) {
            return *date;
        }
    }
    const Date date{to_double(value)};
    // A day that the calendar does not have ("31.02.26") is no number with its digits in groups.
    if (text != nullptr && text->find('.') != std::string::npos &&
        date.days == std::floor(date.days)) {
        raise(RuntimeError::TypeMismatch);
    }
    // Years 100 to 9999 are all that a date can say.
    if (!(date.days > -657435.0 && date.days < 2958466.0)) {
        raise(RuntimeError::Overflow);
    }
    return date;
}

ObjectRef to_object(const Variant& value) {
    if (const auto* object = value.get_if<ObjectRef>()) {
        return *object;
    }
    if (value.is<Null>() || value.is<Empty>() || value.is<Missing>()) {
        return nullptr;
    }
    raise(RuntimeError::TypeMismatch);
}

}  // namespace cvdeveloper
