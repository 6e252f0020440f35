#include "foreign_object.h"

#include <string>
#include <vector>

#include "cvdeveloper/automation/runtime_errors.h"
#include "errors.h"
#include "platform/windows/bstr.h"
#include "platform/windows/utf16.h"
#include "values.h"

namespace cvdeveloper::com {

namespace {

// The arguments of one call in the system's order: the last one first. Where a variable goes by
// reference, the variable is kept here and the call gets a reference to it.
class CallArguments {
  public:
    explicit CallArguments(const Arguments& arguments) : arguments_(&arguments) {
        const std::size_t count = arguments.values.size();
        variables_.resize(count);
        passed_.resize(count);
        for (std::size_t i = 0; i < count; ++i) {
            variables_[i] = OwnedVariant(arguments.values[i]);
            VARIANT& passed = passed_[count - 1 - i];
            if (arguments.is_by_reference(i)) {
                V_VT(&passed) = VT_VARIANT | VT_BYREF;
                V_VARIANTREF(&passed) = variables_[i].address();
            } else {
                passed = variables_[i].get();
            }
        }
    }

    // References to variables of the values' own types, for objects that declare those.
    void refer_to_typed_values() {
        const std::size_t count = variables_.size();
        for (std::size_t i = 0; i < count; ++i) {
            const VARIANT& variable = variables_[i].get();
            VARIANT& passed = passed_[count - 1 - i];
            if (arguments_->is_by_reference(i) && V_VT(&variable) != VT_EMPTY) {
                V_VT(&passed) = V_VT(&variable) | static_cast<VARTYPE>(VT_BYREF);
                passed.byref = &variables_[i].address()->byref;
            }
        }
    }

    void take_back() const {
        for (std::size_t i = 0; i < variables_.size(); ++i) {
            if (arguments_->is_by_reference(i)) {
                arguments_->values[i] = from_native(variables_[i].get());
            }
        }
    }

    [[nodiscard]] DISPPARAMS parameters(DISPID* put) noexcept {
        return {passed_.data(), put, static_cast<UINT>(passed_.size()), put == nullptr ? 0U : 1U};
    }

  private:
    const Arguments* arguments_;
    std::vector<OwnedVariant> variables_;
    std::vector<VARIANT> passed_;
};

WORD flags_of(InvokeKind kind) noexcept {
    switch (kind) {
        case InvokeKind::Method:
            return DISPATCH_METHOD;
        case InvokeKind::Get:
            return DISPATCH_PROPERTYGET;
        case InvokeKind::Put:
            return DISPATCH_PROPERTYPUT;
        case InvokeKind::GetOrCall:
            break;
    }
    return DISPATCH_METHOD | DISPATCH_PROPERTYGET;
}

}  // namespace

ForeignObject::ForeignObject(Interface<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {
    if (FAILED(dispatch_->QueryInterface(__uuidof(IDispatchEx), extended_.receive()))) {
        extended_ = {};
    }
}

DISPID ForeignObject::id_of(std::string_view member) const {
    std::wstring name = to_utf16(member);
    DISPID id = DISPID_UNKNOWN;
    HRESULT status = E_NOTIMPL;
    if (extended_) {
        const UniqueBstr text(to_bstr(member));
        status = extended_->GetDispID(text.get(), fdexNameCaseInsensitive, &id);
    } else {
        LPOLESTR names = name.data();
        status = dispatch_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
    }
    if (FAILED(status)) {
        EXCEPINFO none{};
        throw_foreign(status, none, member);
    }
    return id;
}

HRESULT ForeignObject::call(DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT* result,
                            EXCEPINFO& information) const noexcept {
    if (extended_) {
        return extended_->InvokeEx(id, LOCALE_USER_DEFAULT, flags, &parameters, result,
                                   &information, nullptr);
    }
    UINT wrong_argument = 0;
    return dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result,
                             &information, &wrong_argument);
}

Variant ForeignObject::invoke(std::string_view member, InvokeKind kind, Arguments arguments) {
    if (!arguments.names.empty()) {
        raise(RuntimeError::NamedArgumentNotFound, member);
    }
    return invoke(id_of(member), member, kind, arguments);
}

Variant ForeignObject::default_value() {
    return invoke(DISPID_VALUE, {}, InvokeKind::Get, {});
}

Variant ForeignObject::invoke(DISPID id, std::string_view member, InvokeKind kind,
                              const Arguments& arguments) {
    CallArguments passed(arguments);
    const bool put = kind == InvokeKind::Put;
    DISPID put_id = DISPID_PROPERTYPUT;
    DISPPARAMS parameters = passed.parameters(put ? &put_id : nullptr);
    OwnedVariant result;
    VARIANT* target = put ? nullptr : result.address();
    EXCEPINFO information{};
    HRESULT status = call(id, flags_of(kind), parameters, target, information);
    // An object with declared types refuses variants of unknown content before it runs.
    if (status == DISP_E_TYPEMISMATCH && arguments.by_reference != 0) {
        passed.refer_to_typed_values();
        status = call(id, flags_of(kind), parameters, target, information);
    }
    if (FAILED(status)) {
        throw_foreign(status, information, member);
    }
    passed.take_back();
    return from_native(result.get());
}

}  // namespace cvdeveloper::com
