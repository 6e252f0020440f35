#pragma once

#include <windows.h>

#include <dispex.h>

#include "cvdeveloper/automation/object.h"
#include "interface.h"

namespace cvdeveloper::com {

// An object from outside, called by its members' names at the moment they are needed.
class ForeignObject final : public Object {
  public:
    explicit ForeignObject(Interface<IDispatch> dispatch);

    Variant invoke(std::string_view member, InvokeKind kind, Arguments arguments) override;
    Variant default_value() override;
    [[nodiscard]] std::string_view class_name() const noexcept override { return "Object"; }

    // The object as it came in.
    [[nodiscard]] IDispatch* get() const noexcept { return dispatch_.get(); }

  private:
    Variant invoke(DISPID id, std::string_view member, InvokeKind kind, const Arguments& arguments);
    [[nodiscard]] DISPID id_of(std::string_view member) const;
    HRESULT call(DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT* result,
                 EXCEPINFO& information) const noexcept;

    Interface<IDispatch> dispatch_;
    Interface<IDispatchEx> extended_;  // where the object offers it: script objects need it
};

}  // namespace cvdeveloper::com
