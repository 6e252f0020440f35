#include "items.h"

#include <string>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "cvdeveloper/host/record_set.h"
#include "errors.h"
#include "instances.h"
#include "library_types.h"
#include "row_descriptors.h"
#include "texts.h"
#include "values.h"

namespace cvdeveloper::python {

namespace {

State& state_of_instance(PyObject* self) noexcept {
    return *reinterpret_cast<Instance*>(self)->state;
}

// A record set in use by one caller at a time.
class UsedRecordSet {
  public:
    explicit UsedRecordSet(PyObject* instance)
        : object_(object_behind(instance)), lock_(guard_of(*object_)) {
        api_ = dynamic_cast<host::RecordSet*>(object_.get());
        if (api_ == nullptr) {
            raise(RuntimeError::ObjectRequired);
        }
    }
    host::RecordSet* operator->() const noexcept { return api_; }

  private:
    static ObjectRef object_behind(PyObject* instance) {
        if (!is_instance(instance)) {
            raise(RuntimeError::ObjectRequired);
        }
        return ObjectRef(&object_of(instance));
    }
    static Guard* guard_of(Object& object) {
        auto* of_library = dynamic_cast<LibraryObject*>(&object);
        return of_library == nullptr ? nullptr : of_library->guard();
    }

    ObjectRef object_;
    GuardLock lock_;
    host::RecordSet* api_ = nullptr;
};

// Positions from 0, or a name.
Variant read_field(const UsedRecordSet& rs, PyObject* key) {
    if (PyLong_Check(key)) {
        const long long position = PyLong_AsLongLong(key);
        if (position == -1 && PyErr_Occurred() != nullptr) {
            drop_exception(PyExc_OverflowError);
            raise(RuntimeError::Overflow, "Feldnummer");
        }
        return rs->value_at(to_int32(static_cast<double>(position)));
    }
    const auto name = PyUnicode_Check(key) ? view_of_python(key) : std::nullopt;
    if (!name) {
        raise(RuntimeError::TypeMismatch, "Feldname");
    }
    return rs->value(*name);
}

PyObject* get_field(PyObject* self, PyObject* key) {
    State& state = state_of_instance(self);
    return guarded(state,
                   [&] { return value_to_python(state, read_field(UsedRecordSet(self), key)); });
}

int set_field(PyObject* self, PyObject* key, PyObject* value) {
    State& state = state_of_instance(self);
    return guarded(state, -1, [&] {
        const auto name = PyUnicode_Check(key) ? view_of_python(key) : std::nullopt;
        if (!name || value == nullptr) {
            raise(RuntimeError::TypeMismatch, "Feldname");
        }
        try {
            Variant given = value_of_python(state, value);
            UsedRecordSet(self)->set_value(*name, std::move(given));
        } catch (const NoSuchValue& failure) {
            raise(failure.error, *name);
        }
        return 0;
    });
}

PyObject* call_field(PyObject* self, PyObject* arguments, PyObject* keywords) {
    State& state = state_of_instance(self);
    return guarded(state, [&] {
        if (keywords != nullptr || PyTuple_GET_SIZE(arguments) != 1) {
            raise(RuntimeError::WrongArgumentCount);
        }
        return checked(PyObject_GetItem(self, PyTuple_GET_ITEM(arguments, 0)));
    });
}

PyObject* iterate(PyObject* self) {
    State& state = state_of_instance(self);
    return guarded(state,
                   [&] { return checked(PyObject_CallOneArg(state.iterate_rows.get(), self)); });
}

PyObject* get_item(PyObject* self, PyObject* key) {
    State& state = state_of_instance(self);
    return guarded(state, [&] {
        Object& object = object_of(self);
        const InterfaceTable& table = static_cast<LibraryObject&>(object).table();
        Call call(state, *table.find("Item", InvokeKind::GetOrCall));
        call.place_at(0, key);
        return call.run(object);
    });
}

}  // namespace

void add_item_slots(LibraryObject& sample, std::vector<PyType_Slot>& slots) {
    const Operation* item = sample.table().find("Item", InvokeKind::GetOrCall);
    if (dynamic_cast<host::RecordSet*>(&sample) != nullptr) {
        slots.push_back({Py_mp_subscript, reinterpret_cast<void*>(get_field)});
        slots.push_back({Py_mp_ass_subscript, reinterpret_cast<void*>(set_field)});
        slots.push_back({Py_tp_call, reinterpret_cast<void*>(call_field)});
        slots.push_back({Py_tp_iter, reinterpret_cast<void*>(iterate)});
    } else if (item != nullptr && item->parameters.size() == 1) {
        slots.push_back({Py_mp_subscript, reinterpret_cast<void*>(get_item)});
        slots.push_back({Py_tp_call, reinterpret_cast<void*>(call_field)});
    }
}

PyObject* field_names(PyObject* module, PyObject* record_set) {
    State& state = state_of(module);
    return guarded(state, [&] {
        const UsedRecordSet rs(record_set);
        const std::int32_t count = rs->field_count();
        Owned names = checked(PyTuple_New(count));
        for (std::int32_t i = 0; i < count; ++i) {
            PyTuple_SET_ITEM(names.get(), i, name_to_python(rs->field_name(i)).release());
        }
        return names;
    });
}

PyObject* current_row(PyObject* module, PyObject* record_set) {
    State& state = state_of(module);
    return guarded(state, [&] {
        const UsedRecordSet rs(record_set);
        if (rs->at_end()) {
            return Owned::borrow(Py_None);
        }
        const std::int32_t count = rs->field_count();
        Owned values = checked(PyTuple_New(count));
        for (std::int32_t i = 0; i < count; ++i) {
            PyTuple_SET_ITEM(values.get(), i, value_to_python(state, rs->value_at(i)).release());
        }
        return values;
    });
}

}  // namespace cvdeveloper::python
