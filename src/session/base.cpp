#include "cvdeveloper/base.h"

namespace cvdeveloper {

clsBase::clsBase(const Ref<Session>& shared)
    : SessionObject(shared),
      Gateway(*shared),
      UserInterfaceBridge(*shared),
      TableOperations(*shared),
      CrossTable(*shared),
      UserProfile(*shared),
      Features(*shared),
      DetailValues(*shared),
      FieldFiles(*shared) {}

const InterfaceTable& clsBase::table() const noexcept {
    static const InterfaceTable all(
        "clsBase", "The data operations that work on any table.",
        {
            {"gateway", "Statements out, record sets in, changed rows back.",
             Gateway::operations()},
            {"user-interface-bridge", "The host's forms, progress window and parser of details.",
             UserInterfaceBridge::operations()},
            {"table-operations", "Find, read, write, delete and copy rows of any table.",
             TableOperations::operations()},
            {"cross-table", "Detail values as columns beside the rows of a main table.",
             CrossTable::operations()},
            {"user-profile", "What new records take from the logged-on user.",
             UserProfile::operations()},
            {"features", "Features that a record carries.", Features::operations()},
            {"detail-values", "User-defined values of a record.", DetailValues::operations()},
            {"field-to-file", "Long values of a field to a file.", FieldFiles::operations()},
        });
    return all;
}

}  // namespace cvdeveloper
