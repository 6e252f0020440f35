#include "cvdeveloper/automation/idl.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace cvdeveloper {

namespace {

// IUnknown has three slots, IDispatch four more.
constexpr std::size_t first_slot = 7;

std::string quoted(std::string_view text) {
    std::string literal = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            literal += '\\';
        }
        literal += c;
    }
    return literal + "\"";
}

std::string type_text(const TypeName& type) {
    switch (type.type) {
        case ValueType::Nothing:
            return "void";
        case ValueType::String:
            return "BSTR";
        case ValueType::Boolean:
            return "VARIANT_BOOL";
        case ValueType::Int16:
            return "short";
        case ValueType::Int32:
            return "long";
        case ValueType::Double:
            return "double";
        case ValueType::Date:
            return "DATE";
        case ValueType::Variant:
            return "VARIANT";
        case ValueType::Object:
            return type.name.empty() ? "IDispatch*"
                                     : std::string("_").append(type.name).append("*");
        case ValueType::RecordSet:
            return "IDispatch*";
        case ValueType::Enumeration:
            return std::string(type.name);
    }
    return {};
}

// The default as IDL writes it: "" where it cannot say it. A double or a date that is left out
// arrives as 0, which is the default of each; a variant arrives as missing.
std::string default_text(const Default& value, ValueType type) {
    switch (type) {
        case ValueType::Boolean:
            if (const auto* flag = value.get_if<bool>()) {
                return *flag ? "-1" : "0";
            }
            return {};
        case ValueType::Int16:
        case ValueType::Int32:
        case ValueType::Enumeration:
            if (const auto* number = value.get_if<std::int32_t>()) {
                return std::to_string(*number);
            }
            return {};
        case ValueType::String:
            if (const auto* text = value.get_if<std::string_view>()) {
                return quoted(*text);
            }
            return {};
        default:
            return {};
    }
}

std::string optional_text(const Parameter& parameter, ValueType type) {
    if (parameter.default_value.required()) {
        return {};
    }
    // The compiler knows no text behind a pointer; one that is left out arrives as "".
    const bool is_text_by_reference =
        parameter.direction == Direction::InOut && type == ValueType::String;
    const std::string value =
        is_text_by_reference ? std::string() : default_text(parameter.default_value, type);
    return value.empty() ? ", optional" : ", optional, defaultvalue(" + value + ")";
}

std::string parameter_text(const Operation& operation, std::size_t index) {
    const Parameter& parameter = operation.parameters[index];
    const bool in_out = parameter.direction == Direction::InOut;
    const TypeName& type = operation.binding.parameter_types[index];
    return std::string(in_out ? "[in, out" : "[in") + optional_text(parameter, type.type) + "] " +
           type_text(type) + (in_out ? "* " : " ") + std::string(parameter.name);
}

std::string_view kind_text(OperationKind kind) {
    switch (kind) {
        case OperationKind::Get:
            return ", propget";
        case OperationKind::Put:
            return ", propput";
        case OperationKind::Method:
            break;
    }
    return {};
}

std::string operation_text(const Operation& operation, std::size_t slot) {
    std::string text = "        // slot " + std::to_string(slot) + "\n        [id(" +
                       std::to_string(operation.id) + ")" + std::string(kind_text(operation.kind)) +
                       ", helpstring(" + quoted(operation.help.what) + ")]\n        HRESULT " +
                       std::string(operation.name) + "(";
    std::string separator;
    for (std::size_t i = 0; i < operation.parameters.size(); ++i) {
        text += separator + "\n            " + parameter_text(operation, i);
        separator = ",";
    }
    if (operation.binding.result.type != ValueType::Nothing) {
        text += separator + "\n            [out, retval] " + type_text(operation.binding.result) +
                "* result";
    }
    return text + ");\n";
}

const ClassIds& ids_of(const LibraryIds& library, std::string_view class_name) {
    const auto found = std::ranges::find(library.classes, class_name, &ClassIds::name);
    if (found == library.classes.end()) {
        throw std::invalid_argument(std::string(class_name) + " has no ids");
    }
    return *found;
}

std::string uuid_text(Identifier id) {
    return "uuid(" + std::string(id) + ")";
}

std::string class_text(const LibraryIds& library, const InterfaceTable& table) {
    const std::string name(table.class_name());
    const ClassIds& ids = ids_of(library, name);
    const std::string help = "helpstring(" + quoted(table.help()) + ")";
    std::string text = "    [object, " + uuid_text(ids.interface_id) +
                       ", dual, oleautomation,\n     " + help + "]\n    interface _" + name +
                       " : IDispatch {\n";
    std::size_t slot = first_slot;
    for (const Operation* operation : table.operations()) {
        text += operation_text(*operation, slot++);
    }
    return text + "    };\n\n    [" + uuid_text(ids.class_id) + ",\n     " + help +
           "]\n    coclass " + name + " {\n        [default] interface _" + name + ";\n    };\n\n";
}

}  // namespace

std::string idl_text(const LibraryIds& library, std::span<const InterfaceTable* const> classes,
                     std::span<const Enumeration> enumerations) {
    std::string text =
        "// Made from the interface tables. The tests compare it; regenerate it with\n"
        "// \"cvdev interface --idl\".\n\n"
        "import \"oaidl.idl\";\n\n[" +
        uuid_text(library.library_id) + ", version(" + std::string(library.version) +
        "), helpstring(" + quoted(library.help) + ")]\nlibrary " + std::string(library.name) +
        " {\n    importlib(\"stdole2.tlb\");\n\n";
    for (const InterfaceTable* table : classes) {
        text += "    interface _" + std::string(table->class_name()) + ";\n";
    }
    text += "\n";
    for (const Enumeration& enumeration : enumerations) {
        text += "    typedef [helpstring(" + quoted(enumeration.help) + ")] enum " +
                std::string(enumeration.name) + " {\n";
        std::string separator;
        for (const EnumerationMember& member : enumeration.members) {
            text += separator + "        " + std::string(member.name) + " = " +
                    std::to_string(member.value);
            separator = ",\n";
        }
        text += "\n    } " + std::string(enumeration.name) + ";\n\n";
    }
    for (const InterfaceTable* table : classes) {
        text += class_text(library, *table);
    }
    text.pop_back();
    return text + "};\n";
}

}  // namespace cvdeveloper
