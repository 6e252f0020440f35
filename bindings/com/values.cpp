#include "values.h"

#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <new>
#include <span>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "instances.h"
#include "platform/utf8.h"
#include "platform/windows/utf16.h"

namespace cvdeveloper::com {

namespace {

constexpr double currency_units = 10000;

Variant whole_number(double number) {
    if (number >= std::numeric_limits<std::int32_t>::min() &&
        number <= std::numeric_limits<std::int32_t>::max()) {
        return static_cast<std::int32_t>(number);
    }
    return number;
}

void check(HRESULT status) {
    if (FAILED(status)) {
        raise(status == E_OUTOFMEMORY ? RuntimeError::Overflow : RuntimeError::TypeMismatch);
    }
}

Variant decimal(DECIMAL value) {
    double number = 0;
    check(VarR8FromDec(&value, &number));
    return number;
}

Bytes bytes_in(SAFEARRAY* array) {
    if (array == nullptr) {
        return {};
    }
    LONG low = 0;
    LONG high = -1;
    if (SafeArrayGetDim(array) != 1) {
        raise(RuntimeError::TypeMismatch);
    }
    check(SafeArrayGetLBound(array, 1, &low));
    check(SafeArrayGetUBound(array, 1, &high));
    void* data = nullptr;
    check(SafeArrayAccessData(array, &data));
    const auto* first = static_cast<const std::byte*>(data);
    Bytes bytes(first, first + (high - low + 1));
    SafeArrayUnaccessData(array);
    return bytes;
}

SAFEARRAY* bytes_out(const Bytes& bytes) {
    SAFEARRAY* array = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    void* data = nullptr;
    if (array == nullptr || FAILED(SafeArrayAccessData(array, &data))) {
        throw std::bad_alloc();
    }
    std::memcpy(data, bytes.data(), bytes.size());
    SafeArrayUnaccessData(array);
    return array;
}

// The value that a by-reference one refers to; its texts, objects and arrays stay the caller's.
VARIANT referred_value(const VARIANT& value) {
    VARIANT plain;
    VariantInit(&plain);
    if (value.byref == nullptr) {
        raise(RuntimeError::TypeMismatch);
    }
    const VARTYPE type = V_VT(&value) & static_cast<VARTYPE>(~VT_BYREF);
    switch (type) {
        case VT_VARIANT:
            return *V_VARIANTREF(&value);
        case VT_DECIMAL:
            plain.decVal = *V_DECIMALREF(&value);
            break;
        case VT_I1:
        case VT_UI1:
            V_UI1(&plain) = *V_UI1REF(&value);
            break;
        case VT_I2:
        case VT_UI2:
        case VT_BOOL:
            V_I2(&plain) = *V_I2REF(&value);
            break;
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
        case VT_R4:
        case VT_ERROR:
            V_I4(&plain) = *V_I4REF(&value);
            break;
        case VT_I8:
        case VT_UI8:
        case VT_R8:
        case VT_DATE:
        case VT_CY:
            V_I8(&plain) = *V_I8REF(&value);
            break;
        default:
            plain.byref = *static_cast<void**>(value.byref);
    }
    V_VT(&plain) = type;
    return plain;
}

}  // namespace

BSTR to_bstr(std::string_view text) {
    const std::wstring units = to_utf16(text);
    BSTR made = SysAllocStringLen(units.data(), static_cast<UINT>(units.size()));
    if (made == nullptr) {
        throw std::bad_alloc();
    }
    return made;
}

std::string from_bstr(const wchar_t* text) {
    return text == nullptr ? std::string()
                           : to_utf8({text, SysStringLen(const_cast<wchar_t*>(text))});
}

OwnedVariant::OwnedVariant(const Variant& value) : value_(to_native(value)) {}

Variant from_native(const VARIANT& value) {
    switch (V_VT(&value)) {
        case VT_EMPTY:
            return Empty{};
        case VT_NULL:
            return Null{};
        case VT_BOOL:
            return V_BOOL(&value) != VARIANT_FALSE;
        case VT_I1:
            return std::int16_t{V_I1(&value)};
        case VT_UI1:
            return std::int16_t{V_UI1(&value)};
        case VT_I2:
            return std::int16_t{V_I2(&value)};
        case VT_UI2:
            return std::int32_t{V_UI2(&value)};
        case VT_I4:
        case VT_INT:
            return std::int32_t{V_I4(&value)};
        case VT_UI4:
        case VT_UINT:
            return whole_number(static_cast<double>(V_UI4(&value)));
        case VT_I8:
            return whole_number(static_cast<double>(V_I8(&value)));
        case VT_UI8:
            return whole_number(static_cast<double>(V_UI8(&value)));
        case VT_R4:
            return static_cast<double>(V_R4(&value));
        case VT_R8:
            return V_R8(&value);
        case VT_CY:
            return static_cast<double>(V_CY(&value).int64) / currency_units;
        case VT_DECIMAL:
            return decimal(value.decVal);
        case VT_DATE:
            return Date{V_DATE(&value)};
        case VT_BSTR:
            return from_bstr(V_BSTR(&value));
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return object_of(V_UNKNOWN(&value));
        case VT_ARRAY | VT_UI1:
            return bytes_in(V_ARRAY(&value));
        case VT_ERROR:
            if (V_ERROR(&value) == DISP_E_PARAMNOTFOUND) {
                return Missing{};
            }
            break;
        default:
            if ((V_VT(&value) & VT_BYREF) != 0) {
                return from_native(referred_value(value));
            }
    }
    raise(RuntimeError::TypeMismatch);
}

VARIANT to_native(const Variant& value) {
    VARIANT native;
    VariantInit(&native);
    switch (value.type()) {
        case VariantType::Empty:
            break;
        case VariantType::Null:
            V_VT(&native) = VT_NULL;
            break;
        case VariantType::Missing:
            V_VT(&native) = VT_ERROR;
            V_ERROR(&native) = DISP_E_PARAMNOTFOUND;
            break;
        case VariantType::Boolean:
            V_VT(&native) = VT_BOOL;
            V_BOOL(&native) = value.get<bool>() ? VARIANT_TRUE : VARIANT_FALSE;
            break;
        case VariantType::Int16:
            V_VT(&native) = VT_I2;
            V_I2(&native) = value.get<std::int16_t>();
            break;
        case VariantType::Int32:
            V_VT(&native) = VT_I4;
            V_I4(&native) = value.get<std::int32_t>();
            break;
        case VariantType::Double:
            V_VT(&native) = VT_R8;
            V_R8(&native) = value.get<double>();
            break;
        case VariantType::Date:
            V_VT(&native) = VT_DATE;
            V_DATE(&native) = value.get<Date>().days;
            break;
        case VariantType::String:
            V_BSTR(&native) = to_bstr(value.get<std::string>());
            V_VT(&native) = VT_BSTR;
            break;
        case VariantType::ByteArray:
            V_ARRAY(&native) = bytes_out(value.get<Bytes>());
            V_VT(&native) = VT_ARRAY | VT_UI1;
            break;
        case VariantType::Object:
            V_DISPATCH(&native) = dispatch_of(value.get<ObjectRef>());
            V_VT(&native) = VT_DISPATCH;
            break;
    }
    return native;
}

bool is_by_reference(const VARIANT& value) noexcept {
    return (V_VT(&value) & VT_BYREF) != 0 && value.byref != nullptr;
}

void store_by_reference(const VARIANT& target, const Variant& value) {
    const VARTYPE type = V_VT(&target) & static_cast<VARTYPE>(~VT_BYREF);
    OwnedVariant native(value);
    if (type == VT_VARIANT) {
        // A variable that refers to another is followed, as the caller does.
        if (is_by_reference(*V_VARIANTREF(&target))) {
            store_by_reference(*V_VARIANTREF(&target), value);
            return;
        }
        OwnedVariant old;
        std::swap(*old.address(), *V_VARIANTREF(&target));
        *V_VARIANTREF(&target) = native.release();
        return;
    }
    if (V_VT(&native.get()) != type) {
        check(VariantChangeType(native.address(), native.address(), 0, type));
    }
    const VARIANT made = native.release();
    switch (type) {
        case VT_I1:
        case VT_UI1:
            *V_UI1REF(&target) = V_UI1(&made);
            break;
        case VT_I2:
        case VT_UI2:
        case VT_BOOL:
            *V_I2REF(&target) = V_I2(&made);
            break;
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
        case VT_R4:
            *V_I4REF(&target) = V_I4(&made);
            break;
        case VT_I8:
        case VT_UI8:
        case VT_R8:
        case VT_DATE:
        case VT_CY:
            *V_I8REF(&target) = V_I8(&made);
            break;
        case VT_DECIMAL:
            *V_DECIMALREF(&target) = made.decVal;
            break;
        default: {
            // A text, object or array: what was there goes.
            OwnedVariant old;
            void*& place = *static_cast<void**>(target.byref);
            old.address()->byref = place;
            V_VT(old.address()) = type;
            place = made.byref;
        }
    }
}

}  // namespace cvdeveloper::com
