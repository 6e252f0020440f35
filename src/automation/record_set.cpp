#include "cvdeveloper/host/record_set.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/text.h"

namespace cvdeveloper {

bool host::names_field(std::string_view list, std::string_view field) {
    const std::string name = upper_case(field);
    for (std::size_t at = list.find(name); at != std::string_view::npos;
         at = list.find(name, at + 1)) {
        const std::size_t end = at + name.size();
        if (at > 0 && list[at - 1] == '|' && end < list.size() && list[end] == '|') {
            return true;
        }
    }
    return false;
}

void host::RecordSet::copy_fields(RecordSet& source, std::string_view excluded) {
    const std::int32_t count = source.field_count();
    for (std::int32_t position = 0; position < count; ++position) {
        const std::string name = source.field_name(position);
        if (!names_field(excluded, name)) {
            set_value(name, source.value_at(position));
        }
    }
}

namespace {

// A record set that is called by its members' names. Fields and fields' items are asked for anew
// each time: what they answer is the record set's business.
class LateRecordSet final : public host::RecordSet {
  public:
    explicit LateRecordSet(Object& object) : object_(object) {}

    bool at_end() override { return to_boolean(object_.get("EOF")); }
    void move_first() override { object_.call("MoveFirst"); }
    void move_next() override { object_.call("MoveNext"); }
    void add_new() override { object_.call("AddNew"); }
    void remove() override { object_.call("Delete"); }
    std::int32_t field_count() override { return to_int32(fields()->get("Count")); }
    std::string field_name(std::int32_t position) override {
        return to_text(field(position)->get("Name"));
    }
    Variant value(std::string_view name) override { return field(name)->get("Value"); }
    Variant value_at(std::int32_t position) override { return field(position)->get("Value"); }
    void set_value(std::string_view name, Variant value) override {
        field(name)->put("Value", std::move(value));
    }

  private:
    [[nodiscard]] ObjectRef fields() const { return required(object_.get("Fields")); }
    [[nodiscard]] ObjectRef field(Variant name_or_position) const {
        return required(fields()->call("Item", std::move(name_or_position)));
    }
    static ObjectRef required(const Variant& value) {
        ObjectRef object = to_object(value);
        if (!object) {
            raise(RuntimeError::ObjectRequired);
        }
        return object;
    }

    Object& object_;
};

// Runs on the native record set, or on one that is called by name, made on the spot.
template <class Use>
decltype(auto) with(const ObjectRef& object, host::RecordSet* native, Use use) {
    if (native != nullptr) {
        return use(*native);
    }
    if (!object) {
        raise(RuntimeError::ObjectNotSet);
    }
    LateRecordSet late(*object);
    return use(static_cast<host::RecordSet&>(late));
}

}  // namespace

RecordSet::RecordSet(ObjectRef object) noexcept
    : object_(std::move(object)), native_(dynamic_cast<host::RecordSet*>(object_.get())) {}

bool RecordSet::at_end() const {
    return with(object_, native_, [](host::RecordSet& rs) { return rs.at_end(); });
}

void RecordSet::move_first() const {
    with(object_, native_, [](host::RecordSet& rs) { rs.move_first(); });
}

void RecordSet::move_next() const {
    with(object_, native_, [](host::RecordSet& rs) { rs.move_next(); });
}

void RecordSet::add_new() const {
    with(object_, native_, [](host::RecordSet& rs) { rs.add_new(); });
}

void RecordSet::remove() const {
    with(object_, native_, [](host::RecordSet& rs) { rs.remove(); });
}

std::int32_t RecordSet::field_count() const {
    return with(object_, native_, [](host::RecordSet& rs) { return rs.field_count(); });
}

std::string RecordSet::field_name(std::int32_t position) const {
    return with(object_, native_,
                [position](host::RecordSet& rs) { return rs.field_name(position); });
}

Variant RecordSet::value(std::string_view name) const {
    return with(object_, native_, [name](host::RecordSet& rs) { return rs.value(name); });
}

Variant RecordSet::value_at(std::int32_t position) const {
    return with(object_, native_,
                [position](host::RecordSet& rs) { return rs.value_at(position); });
}

void RecordSet::set(std::string_view name, Variant value) const {
    with(object_, native_, [&](host::RecordSet& rs) { rs.set_value(name, std::move(value)); });
}

void RecordSet::copy_fields(const RecordSet& source, std::string_view excluded) const {
    with(source.object_, source.native_, [&](host::RecordSet& from) {
        with(object_, native_, [&](host::RecordSet& rs) { rs.copy_fields(from, excluded); });
    });
}

}  // namespace cvdeveloper
