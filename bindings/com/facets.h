#pragma once

#include <windows.h>

#include <oaidl.h>
#include <ocidl.h>

namespace cvdeveloper::com {

class Instance;

// The interfaces of an instance beside its own: that its errors carry information, and which class
// it is of. They live and count with it.
class Facets final : public ISupportErrorInfo, public IProvideClassInfo {
  public:
    explicit Facets(Instance& instance) noexcept : instance_(&instance) {}
    Facets(const Facets&) = delete;
    Facets& operator=(const Facets&) = delete;
    virtual ~Facets() = default;

    // The interface, not counted; nullptr where it is none of these.
    IUnknown* find(const IID& id) noexcept;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** target) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) override;
    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** target) override;

  private:
    Instance* instance_;
};

}  // namespace cvdeveloper::com
