#include "entities/families/generate/writer.h"

#include <algorithm>
#include <vector>

#include "entities/families/topics.h"

namespace cvdeveloper::families {

namespace {

constexpr std::size_t line_width = 100;

constexpr char origin[] =
    "// Written by the target write_families from the rows in src/entities/families.\n\n";

std::string result_type(const Operation& operation) {
    switch (operation.binding.result.type) {
        case ValueType::Nothing:
            return "void";
        case ValueType::Boolean:
            return "bool";
        case ValueType::Int32:
            return "std::int32_t";
        case ValueType::RecordSet:
            return "RecordSet";
        default:
            return "std::string";
    }
}

std::string argument_type(const Operation& operation, std::size_t index) {
    if (operation.binding.parameter_types[index].type != ValueType::RecordSet) {
        return "std::string_view ";
    }
    const bool changes = ((operation.binding.writes >> index) & 1U) != 0;
    return changes ? "RecordSet& " : "const RecordSet& ";
}

std::string default_of(const Parameter& parameter) {
    const auto* text = parameter.default_value.get_if<std::string_view>();
    if (text == nullptr) {
        return {};
    }
    return text->empty() ? " = {}" : " = \"" + std::string(*text) + "\"";
}

std::vector<std::string> arguments(const Operation& operation, bool with_defaults) {
    std::vector<std::string> list;
    for (std::size_t i = 0; i < operation.parameters.size(); ++i) {
        const Parameter& parameter = operation.parameters[i];
        list.push_back(argument_type(operation, i) + std::string(parameter.name) +
                       (with_defaults ? default_of(parameter) : std::string()));
    }
    return list;
}

std::size_t last_line_length(const std::string& text) {
    const std::size_t line_break = text.rfind('\n');
    return line_break == std::string::npos ? text.size() : text.size() - line_break - 1;
}

// A list in brackets as clang-format breaks it: full lines, aligned behind the bracket.
std::string bracketed(const std::string& head, const std::vector<std::string>& list,
                      const std::string& tail) {
    std::string text = head + "(";
    const std::size_t indent = text.size();
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool last = i + 1 == list.size();
        const std::string item = list[i] + (last ? ")" + tail : ",");
        if (i > 0) {
            const bool fits = last_line_length(text) + 1 + item.size() <= line_width;
            if (fits) {
                text.append(" ");
            } else {
                text.append("\n").append(indent, ' ');
            }
        }
        text.append(item);
    }
    return list.empty() ? text + ")" + tail : text;
}

std::string declaration(const Product& product) {
    const Operation& operation = *product.operation;
    const std::string head = "    " + result_type(operation) + " " + std::string(operation.name);
    return bracketed(head, arguments(operation, true), " const;") + "\n";
}

std::string body(const Product& product) {
    const Operation& operation = *product.operation;
    const std::string head = result_type(operation) + " Families::" + std::string(operation.name);
    std::vector<std::string> values{"session()",
                                    "families::" + std::string(product.family->prefix)};
    for (const Parameter& parameter : operation.parameters) {
        values.emplace_back(parameter.name);
    }
    const bool gives_nothing = operation.binding.result.type == ValueType::Nothing;
    const std::string call = std::string(gives_nothing ? "    " : "    return ") +
                             "families::" + std::string(product.kind->function);
    std::string text = "\n";
    text.append(bracketed(head, arguments(operation, false), " const {")).append("\n");
    return text.append(bracketed(call, values, ";")).append("\n}\n");
}

}  // namespace

std::string written_header() {
    std::string text = "#pragma once\n\n";
    text.append(origin).append(
        "#include <string>\n"
        "#include <string_view>\n"
        "\n"
        "#include \"cvdeveloper/data/session.h\"\n"
        "\n"
        "namespace cvdeveloper {\n"
        "\n"
        "// The operations that every kind of record has: finding, changing, showing, features "
        "and\n"
        "// details. Not found is \"\", false or an empty record set; errors are the host's.\n"
        "class Families : public Topic {\n"
        "  public:\n"
        "    using Topic::Topic;\n");
    const Family* family = nullptr;
    for (const Product& product : products()) {
        if (product.family != family) {
            family = product.family;
            text.append("\n    // The ").append(family->records).append("' family.\n");
        }
        text.append(declaration(product));
    }
    text.append(
        "\n"
        "    // One topic for each family.\n"
        "    static std::span<const TopicRows> topics();\n"
        "};\n"
        "\n"
        "}  // namespace cvdeveloper\n");
    return text;
}

std::string written_members() {
    std::string text = origin;
    text.append(
        "#include \"cvdeveloper/entities/families.h\"\n"
        "\n"
        "#include \"entities/families/kinds.h\"\n"
        "#include \"entities/families/topics.h\"\n"
        "\n"
        "namespace cvdeveloper {\n"
        "\n"
        "std::span<const TopicRows> Families::topics() {\n"
        "    return families::topics();\n"
        "}\n");
    for (const Product& product : products()) {
        text.append(body(product));
    }
    text.append("\n}  // namespace cvdeveloper\n");
    return text;
}

}  // namespace cvdeveloper::families
