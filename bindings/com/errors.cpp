#include "errors.h"

#include <memory>
#include <new>
#include <string>

#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "values.h"

namespace cvdeveloper::com {

namespace {

// A failure inside the library that is nobody's error.
constexpr std::int32_t internal_error_number = 51;
constexpr std::uint32_t runtime_error_base = 0x800A0000U;
constexpr std::uint32_t last_runtime_error = 0xFFFFU;

BSTR copy_of(BSTR text) noexcept {
    return text == nullptr ? nullptr : SysAllocStringLen(text, SysStringLen(text));
}

void free_texts(EXCEPINFO& information) noexcept {
    SysFreeString(information.bstrSource);
    SysFreeString(information.bstrDescription);
    SysFreeString(information.bstrHelpFile);
    information = {};
}

// A host's error as it came.
class HeldError final : public AutomationError::Cause {
  public:
    explicit HeldError(const EXCEPINFO& information) noexcept : information_(information) {}
    HeldError(const HeldError&) = delete;
    HeldError& operator=(const HeldError&) = delete;
    ~HeldError() override { free_texts(information_); }

    [[nodiscard]] EXCEPINFO copy() const noexcept {
        EXCEPINFO made = information_;
        made.bstrSource = copy_of(information_.bstrSource);
        made.bstrDescription = copy_of(information_.bstrDescription);
        made.bstrHelpFile = copy_of(information_.bstrHelpFile);
        return made;
    }

  private:
    EXCEPINFO information_;
};

BSTR bstr_or_nothing(const std::string& text) {
    return text.empty() ? nullptr : to_bstr(text);
}

EXCEPINFO information_of(const AutomationError& error) {
    if (const auto* held = dynamic_cast<const HeldError*>(error.cause().get())) {
        return held->copy();
    }
    EXCEPINFO made{};
    made.scode = status_of_number(error.number());
    made.bstrSource = bstr_or_nothing(error.source());
    made.bstrDescription = bstr_or_nothing(error.description());
    return made;
}

// What the exception that is being handled says; a bare status where memory or texts fail.
EXCEPINFO current_information() noexcept {
    EXCEPINFO bare{};
    try {
        throw;
    } catch (const AutomationError& error) {
        try {
            return information_of(error);
        } catch (...) {
            bare.scode = status_of_number(error.number());
        }
    } catch (const Interrupt&) {
        bare.scode = E_ABORT;
    } catch (const std::bad_alloc&) {
        bare.scode = E_OUTOFMEMORY;
    } catch (const std::exception& error) {
        bare.scode = status_of_number(internal_error_number);
        const std::string_view text = error.what();
        bare.bstrDescription = SysAllocStringLen(nullptr, static_cast<UINT>(text.size()));
        for (std::size_t i = 0; bare.bstrDescription != nullptr && i < text.size(); ++i) {
            bare.bstrDescription[i] = static_cast<unsigned char>(text[i]);
        }
    } catch (...) {
        bare.scode = E_UNEXPECTED;
    }
    return bare;
}

HRESULT status_of(const EXCEPINFO& information) noexcept {
    if (information.wCode != 0) {
        return status_of_number(information.wCode);
    }
    return FAILED(information.scode) ? information.scode : E_FAIL;
}

RuntimeError runtime_error_of(HRESULT status) noexcept {
    switch (status) {
        case DISP_E_UNKNOWNNAME:
        case DISP_E_MEMBERNOTFOUND:
            return RuntimeError::NoSuchMember;
        case DISP_E_BADPARAMCOUNT:
            return RuntimeError::WrongArgumentCount;
        case DISP_E_PARAMNOTOPTIONAL:
            return RuntimeError::ArgumentNotOptional;
        case DISP_E_PARAMNOTFOUND:
            return RuntimeError::NamedArgumentNotFound;
        case DISP_E_TYPEMISMATCH:
        case DISP_E_BADVARTYPE:
            return RuntimeError::TypeMismatch;
        case DISP_E_OVERFLOW:
            return RuntimeError::Overflow;
        case DISP_E_BADINDEX:
            return RuntimeError::SubscriptOutOfRange;
        default:
            return RuntimeError{0};
    }
}

}  // namespace

HRESULT status_of_number(std::int32_t number) noexcept {
    if (number > 0 && static_cast<std::uint32_t>(number) <= last_runtime_error) {
        return static_cast<HRESULT>(runtime_error_base + static_cast<std::uint32_t>(number));
    }
    return number < 0 ? number : E_FAIL;
}

std::int32_t number_of_status(HRESULT status) noexcept {
    const auto bits = static_cast<std::uint32_t>(status);
    const bool of_runtime = (bits & ~last_runtime_error) == runtime_error_base;
    return static_cast<std::int32_t>(of_runtime ? bits & last_runtime_error : bits);
}

HRESULT set_error_information(const IID& interface_id) noexcept {
    EXCEPINFO information = current_information();
    const HRESULT status = status_of(information);
    ICreateErrorInfo* made = nullptr;
    if (SUCCEEDED(CreateErrorInfo(&made))) {
        made->SetGUID(interface_id);
        made->SetSource(information.bstrSource);
        made->SetDescription(information.bstrDescription);
        made->SetHelpFile(information.bstrHelpFile);
        made->SetHelpContext(information.dwHelpContext);
        IErrorInfo* readable = nullptr;
        if (SUCCEEDED(made->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&readable)))) {
            SetErrorInfo(0, readable);
            readable->Release();
        }
        made->Release();
    }
    free_texts(information);
    return status;
}

HRESULT fill_exception(EXCEPINFO* target) noexcept {
    EXCEPINFO information = current_information();
    if (target == nullptr) {
        const HRESULT status = status_of(information);
        free_texts(information);
        return status;
    }
    *target = information;
    return DISP_E_EXCEPTION;
}

void throw_foreign(HRESULT status, EXCEPINFO& information, std::string_view member) {
    if (status != DISP_E_EXCEPTION) {
        free_texts(information);
        if (const RuntimeError error = runtime_error_of(status); error != RuntimeError{0}) {
            raise(error, member);
        }
        throw AutomationError(number_of_status(status), "", "");
    }
    if (information.pfnDeferredFillIn != nullptr) {
        information.pfnDeferredFillIn(&information);
        information.pfnDeferredFillIn = nullptr;
    }
    const auto held = std::make_shared<const HeldError>(information);
    throw AutomationError(number_of_status(status_of(information)),
                          from_bstr(information.bstrSource), from_bstr(information.bstrDescription),
                          held);
}

}  // namespace cvdeveloper::com
