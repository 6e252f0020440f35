#pragma once

#include <memory>

#include "cvdeveloper/automation/object.h"
#include "state.h"

namespace cvdeveloper::python {

// Any Python object as the library sees it. Members are found by their exact spelling first, then
// without regard to case; callable ones are called, others read. Takes the interpreter lock itself.
class PythonObject final : public Object {
  public:
    PythonObject(std::shared_ptr<State> state, PyObject* object);
    PythonObject(const PythonObject&) = delete;
    PythonObject& operator=(const PythonObject&) = delete;
    ~PythonObject() override;

    [[nodiscard]] PyObject* get() const noexcept { return object_; }

    Variant invoke(std::string_view member, InvokeKind kind, Arguments arguments) override;
    // Calls the object itself.
    Variant call_itself(Arguments arguments);
    [[nodiscard]] std::string_view class_name() const noexcept override;

  private:
    [[nodiscard]] Owned find(std::string_view member) const;
    [[nodiscard]] Owned spelling_to_write(std::string_view member) const;
    void put(std::string_view member, Arguments arguments);
    Variant read_or_call(std::string_view member, Arguments arguments);

    std::shared_ptr<State> state_;
    PyObject* object_;
};

}  // namespace cvdeveloper::python
