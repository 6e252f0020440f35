#include "cvdeveloper/automation/idl.h"

#include <cstdint>
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

// "optional", with the default where IDL can say it: not for a double or a date.
std::string optional_text(const Parameter& parameter) {
    if (parameter.default_value.required()) {
        return {};
    }
    std::string text = ", optional";
    if (const auto* flag = parameter.default_value.get_if<bool>()) {
        text += std::string(", defaultvalue(") + (*flag ? "-1" : "0") + ")";
    } else if (const auto* number = parameter.default_value.get_if<std::int32_t>()) {
        text += ", defaultvalue(" + std::to_string(*number) + ")";
    } else if (const auto* string = parameter.default_value.get_if<std::string_view>()) {
        text += ", defaultvalue(" + quoted(*string) + ")";
    }
    return text;
}

std::string parameter_text(const Operation& operation, std::size_t index) {
    const Parameter& parameter = operation.parameters[index];
    const bool in_out = parameter.direction == Direction::InOut;
    return std::string(in_out ? "[in, out" : "[in") + optional_text(parameter) + "] " +
           type_text(operation.binding.parameter_types[index]) + (in_out ? "* " : " ") +
           std::string(parameter.name);
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

std::string class_text(const InterfaceTable& table) {
    const std::string name(table.class_name());
    std::string text = "    [object, dual, oleautomation, helpstring(" + quoted(table.help()) +
                       ")]\n    interface _" + name + " : IDispatch {\n";
    std::size_t slot = first_slot;
    for (const Operation* operation : table.operations()) {
        text += operation_text(*operation, slot++);
    }
    return text + "    };\n\n    coclass " + name + " {\n        [default] interface _" + name +
           ";\n    };\n\n";
}

}  // namespace

std::string idl_text(std::span<const InterfaceTable* const> classes,
                     std::span<const Enumeration> enumerations) {
    std::string text =
        "// Made from the interface tables. The tests compare it; regenerate it with\n"
        "// \"cvdev interface --idl\".\n\n"
        "[helpstring(\"Corvanta Entwicklungstools\")]\nlibrary CVDeveloper {\n"
        "    importlib(\"stdole2.tlb\");\n\n";
    for (const InterfaceTable* table : classes) {
        text += "    interface _" + std::string(table->class_name()) + ";\n";
    }
    text += "\n";
    for (const Enumeration& enumeration : enumerations) {
        text += "    typedef enum {\n";
        std::string separator;
        for (const EnumerationMember& member : enumeration.members) {
            text += separator + "        " + std::string(member.name) + " = " +
                    std::to_string(member.value);
            separator = ",\n";
        }
        text += "\n    } " + std::string(enumeration.name) + ";\n\n";
    }
    for (const InterfaceTable* table : classes) {
        text += class_text(*table);
    }
    text.pop_back();
    return text + "};\n";
}

}  // namespace cvdeveloper
