#include "cvdeveloper/base.h"

namespace cvdeveloper {

clsBase::clsBase(Ref<Session> shared)
    : SessionObject(shared),
      Gateway(*shared),
      TableOperations(*shared),
      UserProfile(*shared),
      Features(*shared),
      FieldFiles(*shared) {}

const InterfaceTable& clsBase::table() const noexcept {
    static const InterfaceTable all(
        "clsBase", "The data operations that work on any table.",
        {
            {"gateway", "Statements out, record sets in, changed rows back.",
             Gateway::operations()},
            {"table-operations", "Find, read, write, delete and copy rows of any table.",
             TableOperations::operations()},
            {"user-profile", "What new records take from the logged-on user.",
             UserProfile::operations()},
            {"features", "Features that a record carries.", Features::operations()},
            {"field-to-file", "Long values of a field to a file.", FieldFiles::operations()},
        });
    return all;
}

}  // namespace cvdeveloper
