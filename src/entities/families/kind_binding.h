#pragma once

#include <utility>

#include "cvdeveloper/automation/binding.h"
#include "entities/families/kinds.h"

// bind_kind<&find>: one binding for all families' rows of a kind. Which family is called shows in
// the id of the row.
namespace cvdeveloper::families {

#ifdef _WIN32
// A vtable's entry knows no row: each family has its own, and all of a kind share what they do.
template <auto Function, class R, class... A>
struct InvokeKind {
    const Family* family;
    R operator()(Object& self, A... arguments) const {
        return Function(session_of(self), *family, std::forward<A>(arguments)...);
    }
    template <std::int32_t id>
    static InvokeKind make() noexcept {
        return {&family_of(id)};
    }
};

template <auto Function, class R, class... A>
NativeEntry native_kind_entry(const Operation& operation) noexcept {
    using Invoke = InvokeKind<Function, R, A...>;
    using Entry = native::Entry<Invoke, binding::changed_arguments<A...>,
                                std::index_sequence_for<A...>, R, A...>;
    return [&]<std::size_t... F>(std::index_sequence<F...>) {
        constexpr NativeEntry (*entries[])() = {&Entry::template entry<
            &Invoke::template make<first_block + static_cast<std::int32_t>(F) * block_size>>...};
        return entries[static_cast<std::size_t>((operation.id - first_block) / block_size)]();
    }
    (std::make_index_sequence<family_count>{});
}
#endif

template <auto Function, class R, class... A>
constexpr Binding::Native native_kind_side() {
#ifdef _WIN32
    return native_kind_entry<Function, R, A...>;
#else
    return nullptr;
#endif
}

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
                                 .writes = Signature::writes,
                                 .by_reference = Signature::writes,
                                 .native = native_kind_side<Function, R, A...>()};
};

template <auto Function>
constexpr Binding bind_kind = KindCall<Function>::row;

}  // namespace cvdeveloper::families
