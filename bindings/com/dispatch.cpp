#include "dispatch.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "enumerator.h"
#include "errors.h"
#include "instances.h"
#include "interface.h"
#include "platform/text.h"
#include "platform/windows/utf16.h"
#include "values.h"

namespace cvdeveloper::com {

namespace {

constexpr WORD put_flags = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
constexpr std::string_view enumerator_name = "_NewEnum";

// Names of members are plain ASCII; any other name is nobody's.
class NarrowName {
  public:
    explicit NarrowName(const wchar_t* name) noexcept {
        while (name[size_] != 0 && size_ < text_.size() && name[size_] < 0x80) {
            text_[size_] = static_cast<char>(name[size_]);
            ++size_;
        }
        if (name[size_] != 0) {
            size_ = 0;
        }
    }
    [[nodiscard]] std::string_view get() const noexcept { return {text_.data(), size_}; }

  private:
    std::array<char, 64> text_;
    std::size_t size_ = 0;
};

DISPID id_of_member(const NativeClass& native_class, std::string_view name) {
    const DISPID id = native_class.id_of(name);
    if (id == DISPID_UNKNOWN && native_class.is_collection() &&
        equal_ignoring_case(name, enumerator_name)) {
        return DISPID_NEWENUM;
    }
    return id;
}

// An argument's id is its position in the row.
DISPID id_of_argument(const NativeClass::Members& members, std::string_view name) {
    const Operation* operation = members.read != nullptr ? members.read : members.write;
    if (operation != nullptr) {
        for (std::size_t i = 0; i < operation->parameters.size(); ++i) {
            if (equal_ignoring_case(operation->parameters[i].name, name)) {
                return static_cast<DISPID>(i);
            }
        }
    }
    return DISPID_UNKNOWN;
}

// The arguments of one call, each in its place in the row.
class Slots {
  public:
    Slots(const Operation& operation, const DISPPARAMS& parameters)
        : operation_(&operation), count_(operation.parameters.size()) {
        if (count_ > few) {
            many_slots_.resize(count_);
            many_sources_.resize(count_);
        }
        for (std::size_t i = 0; i < count_; ++i) {
            data()[i] = Missing{};
        }
        if (parameters.cArgs > count_) {
            raise_too_many_arguments(operation, parameters.cArgs);
        }
        const std::size_t named = parameters.cNamedArgs;
        const std::size_t positional = parameters.cArgs - named;
        for (std::size_t i = 0; i < positional; ++i) {
            place(i, parameters.rgvarg[parameters.cArgs - 1 - i]);
        }
        for (std::size_t i = 0; i < named; ++i) {
            place_named(parameters.rgdispidNamedArgs[i], parameters.rgvarg[i]);
        }
    }

    [[nodiscard]] Variant* data() noexcept {
        return count_ > few ? many_slots_.data() : few_slots_.data();
    }

    // Gives the caller's variables what the function left.
    void store() {
        for (std::size_t i = 0; i < count_; ++i) {
            const VARIANT* source = sources()[i];
            if (((operation_->binding.writes >> i) & 1U) != 0 && source != nullptr &&
                is_by_reference(*source)) {
                store_by_reference(*source, data()[i]);
            }
        }
    }

  private:
    static constexpr std::size_t few = 8;

    const VARIANT** sources() noexcept {
        return count_ > few ? many_sources_.data() : few_sources_.data();
    }

    void place(std::size_t index, const VARIANT& value) {
        try {
            data()[index] = from_native(value);
        } catch (const AutomationError& error) {
            raise(static_cast<RuntimeError>(error.number()),
                  binding::describe({*operation_, index}));
        }
        sources()[index] = &value;
    }

    void place_named(DISPID id, const VARIANT& value) {
        const std::size_t index =
            id == DISPID_PROPERTYPUT ? count_ - 1 : static_cast<std::size_t>(id);
        if (index >= count_) {
            raise(RuntimeError::NamedArgumentNotFound, operation_->name);
        }
        if (sources()[index] != nullptr) {
            raise_given_twice(*operation_, operation_->parameters[index].name);
        }
        place(index, value);
    }

    const Operation* operation_;
    std::size_t count_;
    std::array<Variant, few> few_slots_;
    std::array<const VARIANT*, few> few_sources_{};
    std::vector<Variant> many_slots_;
    std::vector<const VARIANT*> many_sources_;
};

void give(Variant&& value, VARIANT* target) {
    if (target != nullptr) {
        *target = to_native(value);
    }
}

HRESULT run(Instance& self, const Operation& operation, const DISPPARAMS& parameters,
            VARIANT* result) {
    Slots slots(operation, parameters);
    Variant value = self.library_object().run(operation, slots.data());
    slots.store();
    give(std::move(value), result);
    return S_OK;
}

bool gives_object(const Operation& row) {
    return row.kind == OperationKind::Get && row.binding.result.type == ValueType::Object;
}

// rs("Name") = 1 and folder.Files("x") mean the default member of what the property gives.
HRESULT invoke_default(Instance& self, const Operation& property, const DISPPARAMS& own, WORD flags,
                       DISPPARAMS rest, VARIANT* result, EXCEPINFO* exception) {
    Slots slots(property, own);
    const Interface<IDispatch> object = [&] {
        Interface<IDispatch> made;
        *made.address() = dispatch_of(to_object(self.library_object().run(property, slots.data())));
        return made;
    }();
    if (!object) {
        raise(RuntimeError::ObjectRequired, property.name);
    }
    UINT wrong_argument = 0;
    return object->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, flags, &rest, result,
                          exception, &wrong_argument);
}

HRESULT put(Instance& self, const NativeClass::Members& members, WORD flags,
            const DISPPARAMS& parameters, EXCEPINFO* exception) {
    if (members.write != nullptr) {
        return run(self, *members.write, parameters, nullptr);
    }
    if (members.read == nullptr || !gives_object(*members.read) || parameters.cArgs == 0) {
        return DISP_E_MEMBERNOTFOUND;
    }
    const DISPPARAMS own{parameters.rgvarg + 1, nullptr, parameters.cArgs - 1, 0};
    const DISPPARAMS value{parameters.rgvarg, parameters.rgdispidNamedArgs, 1,
                           parameters.cNamedArgs};
    return invoke_default(self, *members.read, own, flags, value, nullptr, exception);
}

HRESULT read(Instance& self, const NativeClass::Members& members, WORD flags,
             const DISPPARAMS& parameters, VARIANT* result, EXCEPINFO* exception) {
    if (members.read == nullptr) {
        return DISP_E_MEMBERNOTFOUND;
    }
    const Operation& row = *members.read;
    if (gives_object(row) && row.parameters.empty() && parameters.cArgs > 0) {
        return invoke_default(self, row, {}, flags, parameters, result, exception);
    }
    return run(self, row, parameters, result);
}

}  // namespace

HRESULT find_ids(const Instance& self, std::span<LPOLESTR> names, DISPID* ids) noexcept {
    try {
        const NativeClass& native_class = self.native_class();
        ids[0] = id_of_member(native_class, NarrowName(names[0]).get());
        HRESULT status = ids[0] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
        for (std::size_t i = 1; i < names.size(); ++i) {
            ids[i] = id_of_argument(native_class.members(ids[0]), NarrowName(names[i]).get());
            status = ids[i] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : status;
        }
        return status;
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

HRESULT invoke(Instance& self, DISPID id, WORD flags, const DISPPARAMS& parameters, VARIANT* result,
               EXCEPINFO* exception) noexcept {
    try {
        if (id == DISPID_NEWENUM && self.native_class().is_collection()) {
            if (result != nullptr) {
                V_UNKNOWN(result) = make_enumerator(self);
                V_VT(result) = VT_UNKNOWN;
            }
            return S_OK;
        }
        const NativeClass::Members members = self.native_class().members(id);
        if ((flags & put_flags) != 0) {
            return put(self, members, flags, parameters, exception);
        }
        return read(self, members, flags, parameters, result, exception);
    } catch (...) {
        return fill_exception(exception);
    }
}

}  // namespace cvdeveloper::com
