#include "automation/reference_text.h"

#include <cstdint>
#include <vector>

#include "cvdeveloper/enumerations.h"
#include "platform/text.h"

namespace cvdeveloper::reference {

namespace {

constexpr std::size_t longest_line = 90;

std::string number_text(double number) {
    std::string text = std::to_string(number);
    text.erase(text.find_last_not_of('0') + 1);
    return text.ends_with('.') ? text + "0" : text;
}

std::string quoted(std::string_view text) {
    std::string literal = "\"";
    for (const char c : text) {
        switch (c) {
            case '\r':
                literal += "\\r";
                break;
            case '\n':
                literal += "\\n";
                break;
            case '\t':
                literal += "\\t";
                break;
            case '"':
            case '\\':
                literal += '\\';
                [[fallthrough]];
            default:
                literal += c;
        }
    }
    return literal + "\"";
}

std::string member_name(std::string_view enumeration_name, std::int32_t value) {
    for (const Enumeration& enumeration : enumerations()) {
        for (const EnumerationMember& member : enumeration.members) {
            if (enumeration.name == enumeration_name && member.value == value) {
                return std::string(member.name);
            }
        }
    }
    return std::to_string(value);
}

std::string parameter_text(const Operation& operation, std::size_t index) {
    const Parameter& parameter = operation.parameters[index];
    const std::string value =
        default_text(parameter.default_value, operation.binding.parameter_types[index]);
    return std::string(parameter.name) + ": " +
           type_name(operation.binding.parameter_types[index]) +
           (value.empty() ? "" : " = " + value);
}

// One line where it fits, else one argument a line.
std::string argument_list(const std::vector<std::string>& arguments, std::size_t taken) {
    std::string line;
    std::string lines;
    for (const std::string& argument : arguments) {
        line += (line.empty() ? "" : ", ") + argument;
        lines += (lines.empty() ? "\n    " : ",\n    ") + argument;
    }
    return "(" + (line.size() + taken <= longest_line ? line : lines) + ")";
}

}  // namespace

std::string plain(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (std::string_view("\\`*<|").find(c) != std::string_view::npos) {
            escaped += '\\';
        }
        escaped += c;
    }
    return escaped;
}

std::string code(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        escaped += c == '|' ? "\\|" : std::string(1, c);
    }
    return "`" + escaped + "`";
}

std::string type_name(const TypeName& type) {
    switch (type.type) {
        case ValueType::Nothing:
            return {};
        case ValueType::String:
            return "String";
        case ValueType::Boolean:
            return "Boolean";
        case ValueType::Int16:
            return "Integer";
        case ValueType::Int32:
            return "Long";
        case ValueType::Double:
            return "Double";
        case ValueType::Date:
            return "Date";
        case ValueType::Variant:
            return "Variant";
        case ValueType::Object:
            return type.name.empty() ? "Object" : std::string(type.name);
        case ValueType::RecordSet:
            return "Recordset";
        case ValueType::Enumeration:
            return std::string(type.name);
    }
    return {};
}

std::string type_link(const TypeName& type) {
    std::string name = type_name(type);
    if (type.type != ValueType::Enumeration) {
        return name;
    }
    return "[" + name + "](enumerations.md#" + lower_case(name) + ")";
}

std::string default_text(const Default& value, const TypeName& type) {
    if (const auto* flag = value.get_if<bool>()) {
        return *flag ? "True" : "False";
    }
    if (const auto* number = value.get_if<std::int32_t>()) {
        return type.type == ValueType::Enumeration ? member_name(type.name, *number)
                                                   : std::to_string(*number);
    }
    if (const auto* number = value.get_if<double>()) {
        return number_text(*number);
    }
    if (const auto* date = value.get_if<Date>()) {
        return date->days == 0 ? "0" : number_text(date->days);
    }
    if (const auto* text = value.get_if<std::string_view>()) {
        return quoted(*text);
    }
    return value.required() ? "" : "(missing)";
}

std::string heading(const Operation& operation) {
    const bool writes = operation.kind == OperationKind::Put;
    return std::string(operation.name) + (writes ? " (write)" : "");
}

std::string anchor(const Operation& operation) {
    const bool writes = operation.kind == OperationKind::Put;
    return lower_case(operation.name) + (writes ? "-write" : "");
}

std::string signature(const Operation& operation) {
    std::vector<std::string> arguments;
    for (std::size_t i = 0; i < operation.parameters.size(); ++i) {
        arguments.push_back(parameter_text(operation, i));
    }
    std::string end;
    if (operation.kind == OperationKind::Put && !arguments.empty()) {
        end = " = " + arguments.back();
        arguments.pop_back();
    } else if (operation.binding.result.type != ValueType::Nothing) {
        end = " -> " + type_name(operation.binding.result);
    }
    std::string text(operation.name);
    if (operation.kind == OperationKind::Method || !arguments.empty()) {
        text += argument_list(arguments, text.size() + end.size() + 2);
    }
    return text + end;
}

}  // namespace cvdeveloper::reference
