#include "cvdeveloper/automation/reference.h"

#include "automation/reference_text.h"
#include "platform/text.h"

namespace cvdeveloper {

using namespace reference;

const std::string_view reference_mark =
    "<!-- Made from the interface tables by \"cvdev interface --reference docs/reference\". -->";

namespace {

constexpr std::string_view values_text =
    "Types are named as scripts know them. What stands for them elsewhere:\n\n"
    "| type | Python | C++ |\n"
    "|---|---|---|\n"
    "| String | `str` | `std::string`, `std::string_view` |\n"
    "| Boolean | `bool` | `bool` |\n"
    "| Integer (16 bits) | `int` | `std::int16_t` |\n"
    "| Long (32 bits) | `int` | `std::int32_t` |\n"
    "| Double | `float` | `double` |\n"
    "| Date (local time) | `datetime.datetime` | `cvdeveloper::Date` |\n"
    "| Variant | any value | `cvdeveloper::Variant` |\n"
    "| Object | any object | `cvdeveloper::ObjectRef` |\n"
    "| Recordset | the host's record set | `cvdeveloper::RecordSet` |\n\n"
    "An in/out argument is written back on success; in Python, pass a `cvdeveloper.Ref` to see "
    "it.\nWhat errors mean stands in [errors.md](../errors.md), values in "
    "[python.md](../python.md).\n";

std::string page_begin(std::string_view title) {
    return std::string(reference_mark) + "\n\n# " + std::string(title) + "\n\n";
}

std::string page_name(const TopicRows& topic) {
    return std::string(topic.name) + ".md";
}

void add_arguments(std::string& page, const Operation& operation) {
    if (operation.parameters.empty()) {
        return;
    }
    page += "| argument | type | default | | meaning |\n|---|---|---|---|---|\n";
    for (std::size_t i = 0; i < operation.parameters.size(); ++i) {
        const Parameter& parameter = operation.parameters[i];
        const std::string value =
            default_text(parameter.default_value, operation.binding.parameter_types[i]);
        page += "| " + code(parameter.name) + " | " +
                type_link(operation.binding.parameter_types[i]) + " | " +
                (value.empty() ? "required" : code(value)) + " | " +
                (parameter.direction == Direction::InOut ? "in/out" : "in") + " | " +
                plain(parameter.help) + " |\n";
    }
    page += "\n";
}

void add_paragraph(std::string& page, std::string_view title, std::string_view text) {
    if (!text.empty()) {
        page += "**" + std::string(title) + ":** " + plain(text) + "\n\n";
    }
}

void add_operation(std::string& page, const Operation& operation) {
    page += "## " + heading(operation) + "\n\n```text\n" + signature(operation) + "\n```\n\n" +
            plain(operation.help.what) + "\n\n";
    add_arguments(page, operation);
    add_paragraph(page, "Result", operation.help.result);
    add_paragraph(page, "Errors", operation.help.errors);
    add_paragraph(page, "Reads and writes", operation.help.tables);
    if (!operation.help.example.empty()) {
        page += "```python\n" + std::string(operation.help.example) + "\n```\n\n";
    }
}

ReferencePage topic_page(const InterfaceTable& table, const TopicRows& topic) {
    std::string page =
        page_begin(std::string(table.class_name()) + ": " + std::string(topic.name)) +
        plain(topic.help) + " [All operations](README.md)\n\n";
    for (const Operation& operation : topic.operations) {
        add_operation(page, operation);
    }
    page.pop_back();
    return {page_name(topic), page};
}

// A property's two sides count once.
std::size_t count_operations(const InterfaceTable& table) {
    std::size_t count = 0;
    for (const Operation* operation : table.operations()) {
        const bool second_side = operation->kind == OperationKind::Put &&
                                 table.find(operation->name, InvokeKind::Get) != nullptr;
        count += second_side ? 0 : 1;
    }
    return count;
}

void add_topic_entry(std::string& page, const TopicRows& topic) {
    page += "**[" + std::string(topic.name) + "](" + page_name(topic) +
            ")**: " + plain(topic.help) + "\n\n";
    std::string separator;
    for (const Operation& operation : topic.operations) {
        page += separator + "[" + heading(operation) + "](" + page_name(topic) + "#" +
                anchor(operation) + ")";
        separator = ",\n";
    }
    page += "\n\n";
}

ReferencePage index_page(std::span<const InterfaceTable* const> classes) {
    std::string page = page_begin("Reference") +
                       "One page a topic; a topic belongs to a class. Properties that can be "
                       "written are listed twice and counted once.\n\n"
                       "| class | operations | |\n|---|---|---|\n";
    for (const InterfaceTable* table : classes) {
        page += "| [" + std::string(table->class_name()) + "](#" + lower_case(table->class_name()) +
                ") | " + std::to_string(count_operations(*table)) + " | " + plain(table->help()) +
                " |\n";
    }
    page +=
        "| [enumerations](enumerations.md) | | The numbers that arguments and results name. "
        "|\n\n" +
        std::string(values_text) + "\n";
    for (const InterfaceTable* table : classes) {
        page += "## " + std::string(table->class_name()) + "\n\n";
        for (const TopicRows& topic : table->topics()) {
            add_topic_entry(page, topic);
        }
    }
    page.pop_back();
    return {"README.md", page};
}

ReferencePage enumerations_page(std::span<const Enumeration> enumerations) {
    std::string page =
        page_begin("Enumerations") +
        "In Python they are `enum.IntEnum` classes; the members also stand in the module itself "
        "(`cvdeveloper.EART_MIETE`). Plain numbers are taken too.\n\n";
    for (const Enumeration& enumeration : enumerations) {
        page += "## " + std::string(enumeration.name) + "\n\n" + plain(enumeration.help) +
                "\n\n| member | value | meaning |\n|---|---|---|\n";
        for (const EnumerationMember& member : enumeration.members) {
            page += "| " + code(member.name) + " | " + std::to_string(member.value) + " | " +
                    plain(member.help) + " |\n";
        }
        page += "\n";
    }
    page.pop_back();
    return {"enumerations.md", page};
}

}  // namespace

std::vector<ReferencePage> reference_pages(std::span<const InterfaceTable* const> classes,
                                           std::span<const Enumeration> enumerations) {
    std::vector<ReferencePage> pages{index_page(classes), enumerations_page(enumerations)};
    for (const InterfaceTable* table : classes) {
        for (const TopicRows& topic : table->topics()) {
            pages.push_back(topic_page(*table, topic));
        }
    }
    return pages;
}

}  // namespace cvdeveloper
