#pragma once

#include <span>
#include <vector>

#include "cvdeveloper/automation/object.h"
#include "state.h"

namespace cvdeveloper::python {

// One call of the library's into a Python object. A caller's variable arrives as a Ref, and what is
// left in it goes back into the arguments when the call succeeds.
class HostCall {
  public:
    HostCall(State& state, Arguments arguments);

    Variant run(PyObject* callable);
    Variant index(PyObject* container);
    // The arguments as the key of an index.
    [[nodiscard]] Owned key() const;

  private:
    void take_back();

    State& state_;
    Arguments arguments_;
    std::vector<Owned> handed_;    // what is passed: values, and Refs for the caller's variables
    std::vector<Owned> contents_;  // what the Refs held
    Owned names_;
};

// What a host gave back, as a value. Error 13 for what is none.
Variant host_result(State& state, PyObject* result);

}  // namespace cvdeveloper::python
