#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/automation/object.h"

namespace cvdeveloper::host {

// Whether a list such as "|DSN|STAMP|" names a field; its names are in capitals.
bool names_field(std::string_view list, std::string_view field);

// One column of a record set's current row, as writing it to a file needs it.
class Field {
  public:
    virtual ~Field() = default;
    virtual std::int32_t type() = 0;  // ADO's numbers: 201 long text, 205 long bytes
    virtual Variant value() = 0;
    // The next piece of the value; null when nothing is left.
    virtual Variant get_chunk(std::int32_t size) = 0;
};

// A record set as a host written in C++ implements it. Names without regard to case; positions
// from 0. An unknown name, and reading past the end, are the record set's own errors.
class RecordSet {
  public:
    virtual ~RecordSet() = default;
    virtual bool at_end() = 0;
    virtual void move_first() = 0;
    virtual void move_next() = 0;
    virtual void add_new() = 0;
    virtual void remove() = 0;  // the current row
    virtual std::int32_t field_count() = 0;
    virtual std::string field_name(std::int32_t position) = 0;
    virtual Variant value(std::string_view name) = 0;
    virtual Variant value_at(std::int32_t position) = 0;
    virtual void set_value(std::string_view name, Variant value) = 0;
    // Gives the current row the values of another's, field by field and by name, but for the fields
    // that the list names ("|DSN|STAMP|"). Hosts that know a shorter way between two record sets of
    // their own may take it.
    virtual void copy_fields(RecordSet& source, std::string_view excluded);
};

}  // namespace cvdeveloper::host

namespace cvdeveloper {

// A handle on a host's record set, whatever wrote it: a C++ host's is called directly, any other
// object by its members' names. Cheap to copy. An empty handle is "nothing"; using it is error 91.
class RecordSet {
  public:
    RecordSet() noexcept = default;
    explicit RecordSet(ObjectRef object) noexcept;
    RecordSet(ObjectRef object, host::RecordSet& native) noexcept
        : object_(std::move(object)), native_(&native) {}

    [[nodiscard]] const ObjectRef& object() const noexcept { return object_; }
    explicit operator bool() const noexcept { return static_cast<bool>(object_); }
    operator Variant() const { return object_ ? Variant(object_) : Variant(ObjectRef()); }

    [[nodiscard]] bool at_end() const;
    void move_first() const;
    void move_next() const;
    void add_new() const;
    void remove() const;
    [[nodiscard]] std::int32_t field_count() const;
    [[nodiscard]] std::string field_name(std::int32_t position) const;
    [[nodiscard]] Variant value(std::string_view name) const;
    [[nodiscard]] Variant value_at(std::int32_t position) const;
    void set(std::string_view name, Variant value) const;
    void copy_fields(const RecordSet& source, std::string_view excluded) const;

  private:
    ObjectRef object_;
    host::RecordSet* native_ = nullptr;
};

namespace binding {

template <>
struct Argument<const RecordSet&> {
    static constexpr TypeName type{ValueType::RecordSet};
    Argument(Variant& slot, const Place& place) : value(object_in(slot, place)) {}
    const RecordSet& get() { return value; }
    void store(Variant&) const noexcept {}
    RecordSet value;
};
template <>
struct Argument<RecordSet&> {
    static constexpr TypeName type{ValueType::RecordSet};
    Argument(Variant& slot, const Place& place) : value(object_in(slot, place)) {}
    RecordSet& get() { return value; }
    void store(Variant& slot) const { slot = value; }
    RecordSet value;
};
template <>
struct Result<RecordSet> {
    static constexpr TypeName type{ValueType::RecordSet};
};

}  // namespace binding

#ifdef _WIN32
namespace native {

template <>
struct NativeArgument<const RecordSet&> {
    using Abi = Interface*;
    NativeArgument(Abi abi, const Call&, std::size_t) : value(object_in(abi)) {}
    const RecordSet& get() const { return value; }
    RecordSet value;
};
template <>
struct NativeArgument<RecordSet&> {
    using Abi = Interface*;
    NativeArgument(Abi abi, const Call&, std::size_t) : value(object_in(abi)) {}
    RecordSet& get() { return value; }
    void store(Abi& target) const { replace(target, value.object()); }
    RecordSet value;
};
template <>
struct NativeResult<RecordSet> {
    using Abi = Interface*;
    static void store(const RecordSet& value, Abi& target) { target = object_out(value.object()); }
};
}  // namespace native
#endif
}  // namespace cvdeveloper
