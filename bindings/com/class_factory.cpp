#include "class_factory.h"

#include <deque>

#include "errors.h"
#include "identifiers.h"
#include "instances.h"
#include "interface.h"

namespace cvdeveloper::com {

namespace {

std::atomic<LONG> holders = 0;

}  // namespace

ClassFactory* ClassFactory::find(const CLSID& id) {
    static std::deque<ClassFactory> all = [] {
        std::deque<ClassFactory> made;
        for (const CreatableClass& creatable : this_module.creatable) {
            made.emplace_back(creatable);
        }
        return made;
    }();
    for (ClassFactory& factory : all) {
        if (identifier(factory.class_->ids->class_id) == id) {
            return &factory;
        }
    }
    return nullptr;
}

bool ClassFactory::any_in_use() noexcept {
    return holders != 0;
}

HRESULT ClassFactory::QueryInterface(REFIID id, void** target) {
    if (target == nullptr) {
        return E_POINTER;
    }
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *target = known ? this : nullptr;
    if (known) {
        AddRef();
    }
    return known ? S_OK : E_NOINTERFACE;
}

ULONG ClassFactory::AddRef() {
    return static_cast<ULONG>(++holders);
}

ULONG ClassFactory::Release() {
    return static_cast<ULONG>(--holders);
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** target) {
    if (target == nullptr) {
        return E_POINTER;
    }
    *target = nullptr;
    if (outer != nullptr) {
        return CLASS_E_NOAGGREGATION;
    }
    try {
        Interface<IDispatch> made;
        *made.address() = dispatch_of(class_->create());
        return made->QueryInterface(id, target);
    } catch (...) {
        return set_error_information(IID_IClassFactory);
    }
}

HRESULT ClassFactory::LockServer(BOOL lock) {
    holders += lock ? 1 : -1;
    return S_OK;
}

}  // namespace cvdeveloper::com
