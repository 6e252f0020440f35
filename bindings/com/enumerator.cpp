#include "enumerator.h"

#include "cvdeveloper/automation/conversions.h"
#include "errors.h"
#include "interface.h"
#include "module.h"
#include "values.h"

namespace cvdeveloper::com {

namespace {

class Enumerator final : public IEnumVARIANT {
  public:
    Enumerator(Instance& collection, std::int32_t at)
        : held_(collection.dispatch()), collection_(&collection.library_object()), at_(at) {}
    Enumerator(const Enumerator&) = delete;
    Enumerator& operator=(const Enumerator&) = delete;
    virtual ~Enumerator() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** target) override {
        if (target == nullptr) {
            return E_POINTER;
        }
        const bool known = id == IID_IUnknown || id == IID_IEnumVARIANT;
        *target = known ? this : nullptr;
        if (known) {
            AddRef();
        }
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG count = --references_;
        if (count == 0) {
            delete this;
        }
        return count;
    }

    HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* values, ULONG* given) override {
        ULONG made = 0;
        HRESULT status = S_OK;
        try {
            while (made < count && at_ < end()) {
                values[made] = to_native(collection_->call("Item", at_));
                ++at_;
                ++made;
            }
            status = made == count ? S_OK : S_FALSE;
        } catch (...) {
            status = set_error_information(IID_IEnumVARIANT);
        }
        if (given != nullptr) {
            *given = made;
        }
        return status;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        at_ += static_cast<std::int32_t>(count);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        at_ = this_module.first_position;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** target) override {
        if (target == nullptr) {
            return E_POINTER;
        }
        try {
            *target = new Enumerator(*Instance::behind(held_.get()), at_);
            return S_OK;
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    }

  private:
    [[nodiscard]] std::int32_t end() const {
        return this_module.first_position + to_int32(collection_->get("Count"));
    }

    std::atomic<ULONG> references_{1};
    Interface<IDispatch> held_;  // keeps the module loaded, too
    LibraryObject* collection_;
    std::int32_t at_;
};

}  // namespace

IUnknown* make_enumerator(Instance& collection) {
    return new Enumerator(collection, this_module.first_position);
}

}  // namespace cvdeveloper::com
