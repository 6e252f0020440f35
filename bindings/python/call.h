#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "cvdeveloper/automation/library_object.h"
#include "state.h"

namespace cvdeveloper::python {

// As many as the bits that tell which arguments an operation writes.
constexpr std::size_t most_parameters = 32;

// The names of a row's parameters as interned Python strings, for keyword arguments.
using ParameterNames = std::vector<Owned>;
ParameterNames parameter_names(const Operation& operation);

// One call of a row: its arguments, each at its place, Missing where left out; all on the stack.
class Call {
  public:
    Call(State& state, const Operation& operation);
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call();

    // Errors: 450 for too many, 448 for a name that fits nowhere or a place given twice, 13 or 6
    // for a value that automation does not have.
    void place(PyObject* const* values, std::size_t positional, PyObject* keywords,
               const ParameterNames& names);
    void place_at(std::size_t index, PyObject* value);

    // Runs the row; what it left in arguments goes into the Refs that were passed for them.
    Owned run(Object& object);

  private:
    // Left raw: clearing room for 32 values would cost more than most calls. Call makes and
    // destroys as many as its row has.
    union Slots {
        Slots() {}
        ~Slots() {}
        Slots(const Slots&) = delete;
        Slots& operator=(const Slots&) = delete;
        Variant values[most_parameters];
    };

    Variant* slots() noexcept { return slots_.values; }
    std::size_t place_of(PyObject* keyword, const ParameterNames& names) const;

    State& state_;
    const Operation& operation_;
    std::uint32_t references_ = 0;                            // bit i: references_to_[i] is a Ref
    std::array<PyObject*, most_parameters> references_to_{};  // borrowed from the caller
    Slots slots_;
};

}  // namespace cvdeveloper::python
