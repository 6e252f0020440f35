#include "cvdeveloper/base.h"

namespace cvdeveloper {

clsBase::clsBase(Ref<Session> shared) : SessionObject(shared), Gateway(*shared) {}

const InterfaceTable& clsBase::table() const noexcept {
    static const InterfaceTable all(
        "clsBase", "The data operations that work on any table.",
        {
            {"gateway", "Statements out, record sets in, changed rows back.",
             Gateway::operations()},
        });
    return all;
}

}  // namespace cvdeveloper
