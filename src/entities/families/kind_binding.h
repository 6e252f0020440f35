#pragma once

#include <utility>

#include "cvdeveloper/automation/binding.h"
#include "entities/families/kinds.h"

// bind_kind<&find>: one binding for all families' rows of a kind. Which family is called shows in
// the id of the row.
namespace cvdeveloper::families {

template <auto Function>
struct KindCall;

template <class R, class... A, R (*Function)(Session&, const Family&, A...)>
struct KindCall<Function> {
    using Signature = binding::Signature<R, A...>;

    static void call(const Operation& operation, Object& self, Variant* slots, Variant& result) {
        Session& session = session_of(self);
        const Family& family = family_of(operation.id);
        Signature::run(
            operation, slots, result,
            [&](auto&&... values) -> R {
                return Function(session, family, std::forward<decltype(values)>(values)...);
            },
            std::index_sequence_for<A...>{});
    }
    static constexpr Binding row{.call = &call,
                                 .parameter_types = Signature::types,
                                 .result = binding::Result<R>::type,
                                 .writes = Signature::writes};
};

template <auto Function>
constexpr Binding bind_kind = KindCall<Function>::row;

}  // namespace cvdeveloper::families
