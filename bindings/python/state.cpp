#include "state.h"

namespace cvdeveloper::python {

void State::each(const std::function<void(Owned&)>& use) {
    for (Owned* part : {&automation_error, &no_such_member, &ref, &empty, &iterate_rows,
                        &make_signature, &module_name, &value_name, &method_type, &attribute_type,
                        &indexed_type, &bound_indexed_type, &foreign_type}) {
        use(*part);
    }
    for (auto& [table, type] : library_types) {
        use(type);
    }
    for (auto& [name, type] : enumerations) {
        use(type);
    }
}

int State::traverse(visitproc visit, void* arg) {
    int status = 0;
    each([&](Owned& part) {
        if (status == 0 && part) {
            status = visit(part.get(), arg);
        }
    });
    return status;
}

void State::clear() {
    each([](Owned& part) { part = Owned(); });
}

}  // namespace cvdeveloper::python
