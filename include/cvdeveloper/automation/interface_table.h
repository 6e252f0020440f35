#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "cvdeveloper/automation/object.h"

namespace cvdeveloper {

enum class ValueType : std::uint8_t {
    Nothing,
    String,
    Boolean,
    Int16,
    Int32,
    Double,
    Date,
    Variant,
    Object,     // any object, or one of the class that the type names
    RecordSet,  // a host's record set
    Enumeration,
};

struct TypeName {
    ValueType type = ValueType::Nothing;
    std::string_view name = {};  // of the class or enumeration
};

enum class Direction : std::uint8_t { In, InOut };

// The value of an argument that is left out; required() where it cannot be.
class Default {
  public:
    constexpr Default() = default;
    constexpr Default(bool value) : value_(value) {}
    constexpr Default(std::int32_t value) : value_(value) {}
    constexpr Default(double value) : value_(value) {}
    constexpr Default(Date value) : value_(value) {}
    constexpr Default(const char* value) : value_(std::string_view(value)) {}
    constexpr Default(std::string_view value) : value_(value) {}
    constexpr Default(Missing value) : value_(value) {}

    [[nodiscard]] constexpr bool required() const { return value_.index() == 0; }
    [[nodiscard]] Variant value() const;
    template <class T>
    [[nodiscard]] constexpr const T* get_if() const {
        return std::get_if<T>(&value_);
    }

  private:
    std::variant<std::monostate, bool, std::int32_t, double, Date, std::string_view, Missing>
        value_;
};

struct Parameter {
    std::string_view name;
    std::string_view help = {};
    Default default_value = {};
    Direction direction = Direction::In;
};

enum class OperationKind : std::uint8_t { Method, Get, Put };

struct Operation;

// An entry of a vtable, whatever its signature.
using NativeEntry = void (*)();

// The C++ function behind a row: how to call it with a full list of arguments, and its types.
struct Binding {
    using Call = void (*)(const Operation& operation, Object& self, Variant* arguments,
                          Variant& result);
    Call call = nullptr;
    std::span<const TypeName> parameter_types = {};
    TypeName result = {};
    std::uint32_t writes = 0;        // bit i: the function may change argument i
    std::uint32_t by_reference = 0;  // bit i: native callers pass argument i by reference
    // The row's entry in a vtable; on Windows only.
    using Native = NativeEntry (*)(const Operation& operation);
    Native native = nullptr;
};

struct Help {
    std::string_view what;
    std::string_view result = {};
    std::string_view errors = {};
    std::string_view tables = {};   // tables and components read and written
    std::string_view example = {};  // one Python line
};

// One row of a class's interface. Ids are frozen: never changed, never used again. A property's
// writing shares its reading's id.
struct Operation {
    std::int32_t id;
    std::string_view name;
    OperationKind kind;
    Binding binding;
    std::span<const Parameter> parameters;
    Help help;

    [[nodiscard]] std::size_t required_arguments() const;
};

// One subject's rows; a page of the reference.
struct TopicRows {
    std::string_view name;  // "activities"
    std::string_view help;
    std::span<const Operation> operations;
};

// All operations of one class, made from its topics at first use.
class InterfaceTable {
  public:
    InterfaceTable(std::string_view class_name, std::string_view help,
                   std::vector<TopicRows> topics);

    [[nodiscard]] std::string_view class_name() const noexcept { return class_name_; }
    [[nodiscard]] std::string_view help() const noexcept { return help_; }
    [[nodiscard]] std::span<const TopicRows> topics() const noexcept { return topics_; }
    // In ascending id, reading before writing: the order of a vtable.
    [[nodiscard]] std::span<const Operation* const> operations() const noexcept { return ordered_; }

    // The row that answers to the name (without regard to case) and the kind of call, or nullptr.
    [[nodiscard]] const Operation* find(std::string_view name, InvokeKind kind) const;
    [[nodiscard]] bool has_member(std::string_view name) const;
    // Error 438 for a name that no row has, with the nearest names.
    [[noreturn]] void raise_no_such_member(std::string_view name) const;

  private:
    std::string_view class_name_;
    std::string_view help_;
    std::vector<TopicRows> topics_;
    std::vector<const Operation*> ordered_;
    struct Rows {
        const Operation* read = nullptr;  // the method, or the reading of a property
        const Operation* write = nullptr;
    };
    // Member names are plain ASCII: folding them needs no tables and no copy.
    struct FoldedHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const noexcept;
    };
    struct FoldedEqual {
        using is_transparent = void;
        bool operator()(std::string_view left, std::string_view right) const noexcept;
    };
    std::unordered_map<std::string_view, Rows, FoldedHash, FoldedEqual> by_name_;
};

}  // namespace cvdeveloper
