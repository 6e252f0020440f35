#pragma once

#include <windows.h>

#include <unknwn.h>

#include <atomic>

#include "module.h"

namespace cvdeveloper::com {

// Makes objects of one class. There is one for each class, as long as the module is loaded.
class ClassFactory final : public IClassFactory {
  public:
    explicit ClassFactory(const CreatableClass& made) noexcept : class_(&made) {}
    ClassFactory(const ClassFactory&) = delete;
    ClassFactory& operator=(const ClassFactory&) = delete;
    virtual ~ClassFactory() = default;

    // The factory of a class id, or nullptr.
    static ClassFactory* find(const CLSID& id);
    // Whether somebody keeps the module from being unloaded.
    static bool any_in_use() noexcept;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** target) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** target) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

  private:
    const CreatableClass* class_;
};

}  // namespace cvdeveloper::com
