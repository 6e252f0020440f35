#include "cvdeveloper/application.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "cvdeveloper/base.h"
#include "cvdeveloper/tools/phone_list.h"
#include "cvdeveloper/tools/salutation_list.h"
#include "description.h"
#include "errors.h"
#include "instances.h"
#include "library_types.h"

namespace cvdeveloper::python {

namespace {

// The classes that callers make themselves. A derived class may have an __init__ with arguments.
template <class T>
PyObject* construct(PyTypeObject* type, PyObject* arguments, PyObject* keywords) {
    State& state = state_of(type);
    return guarded(state, [&] {
        const bool given =
            PyTuple_GET_SIZE(arguments) > 0 || (keywords != nullptr && PyDict_Size(keywords) > 0);
        if (given && type->tp_init == PyBaseObject_Type.tp_init) {
            raise(RuntimeError::WrongArgumentCount, T::automation_name);
        }
        return make_instance(state, type, make_object<T>());
    });
}

PyObject* enter_session(PyObject* self, PyObject*) {
    return Owned::borrow(self).release();
}

PyObject* leave_session(PyObject* self, PyObject*) {
    State& state = *reinterpret_cast<Instance*>(self)->state;
    return guarded(state, [&] {
        object_of(self).call("Corvanta_Done");
        return Owned::borrow(Py_None);
    });
}

PyMethodDef session_methods[] = {
    {"__enter__", enter_session, METH_NOARGS, "Gives the Application itself."},
    {"__exit__", leave_session, METH_VARARGS, "Detaches from the host: Corvanta_Done."},
    {nullptr, nullptr, 0, nullptr},
};

class ClassList {
  public:
    ClassList(State& state, PyObject* module)
        : state_(state), module_(module), described_(checked(PyList_New(0))) {}

    void add(LibraryObject& sample, newfunc constructor, PyMethodDef* methods = nullptr) {
        const Owned type = make_library_type(state_, module_, sample, constructor, methods);
        const std::string name(sample.table().class_name());
        check(PyModule_AddObjectRef(module_, name.c_str(), type.get()));
        const Owned described = describe_class(state_, sample.table(), constructor != nullptr);
        check(PyList_Append(described_.get(), described.get()));
    }
    [[nodiscard]] const Owned& described() const noexcept { return described_; }

  private:
    State& state_;
    PyObject* module_;
    Owned described_;
};

}  // namespace

void add_library_classes(State& state, PyObject* module) {
    ClassList classes(state, module);
    const auto application = make_object<Application>();
    classes.add(*application, construct<Application>, session_methods);
    classes.add(*application->oBase(), nullptr);
    classes.add(*make_object<clsTools>(), construct<clsTools>);
    classes.add(*make_object<clsSalutationList>(), construct<clsSalutationList>);
    classes.add(*make_object<clsPhoneList>(), construct<clsPhoneList>);
    classes.add(*make_object<clsFileSystem>(), construct<clsFileSystem>);
    check(PyModule_AddObjectRef(module, "_classes", classes.described().get()));
    check(PyModule_AddObjectRef(module, "_enumerations", describe_enumerations().get()));
}

}  // namespace cvdeveloper::python
