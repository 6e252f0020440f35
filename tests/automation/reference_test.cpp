#include "cvdeveloper/automation/reference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

namespace cvdeveloper {
namespace {

constexpr Parameter parameters[] = {
    {.name = "strName", .help = "a name | \"*\" for all"},
    {.name = "enumTyp",
     .help = "what it is",
     .default_value = std::int32_t{FLDARTTYP_DATUM},
     .direction = Direction::InOut},
    {.name = "strList", .help = "names between bars", .default_value = "|A|"},
};
constexpr TypeName types[] = {{ValueType::String},
                              {ValueType::Enumeration, EnumerationName<ENUM_FLDARTTYP>::value},
                              {ValueType::String}};
constexpr Parameter value_parameters[] = {
    {.name = "intIndex", .help = "position, from 1"},
    {.name = "strText", .help = "the new text"},
};
constexpr TypeName value_types[] = {{ValueType::Int16}, {ValueType::String}};

constexpr Operation rows[] = {
    {.id = 1,
     .name = "XXX_Find",
     .kind = OperationKind::Method,
     .binding = {.parameter_types = types, .result = {ValueType::RecordSet}},
     .parameters = parameters,
     .help = {.what = "Finds <something>.",
              .result = "A record set.",
              .errors = "None.",
              .tables = "Reads XXX.",
              .example = "app.XXX_Find(\"a\")"}},
    {.id = 2,
     .name = "Text",
     .kind = OperationKind::Put,
     .binding = {.parameter_types = value_types},
     .parameters = value_parameters,
     .help = {.what = "Changes a text."}},
};

class ReferencePages : public testing::Test {
  protected:
    [[nodiscard]] std::string page(std::string_view name) const {
        const auto found = std::ranges::find(pages, name, &ReferencePage::file_name);
        return found == pages.end() ? std::string() : found->text;
    }
    void expect_in(std::string_view name, std::string_view text) const {
        EXPECT_NE(page(name).find(text), std::string::npos) << text << "\nnot in\n" << page(name);
    }

    InterfaceTable table{"clsX", "A class.", {{"things", "Finding things.", rows}}};
    const InterfaceTable* classes[1] = {&table};
    std::vector<ReferencePage> pages = reference_pages(classes, enumerations());
};

TEST_F(ReferencePages, EachTopicHasAPageThatNamesItsClass) {
    expect_in("things.md", "\n# clsX: things\n\nFinding things. ");
}

TEST_F(ReferencePages, ASignatureShowsTypesDefaultsAndResult) {
    expect_in("things.md",
              "\nXXX_Find(\n    strName: String,\n    enumTyp: ENUM_FLDARTTYP = FLDARTTYP_DATUM,\n"
              "    strList: String = \"|A|\") -> Recordset\n");
}

TEST_F(ReferencePages, WritingAPropertyShowsTheValueBehindItsIndex) {
    expect_in("things.md", "## Text (write)\n\n```text\nText(intIndex: Integer) = strText: String");
}

TEST_F(ReferencePages, TextsThatMarkdownWouldTakeForItsOwnAreShownAsTheyStand) {
    expect_in("things.md", "\nFinds \\<something>.\n");
    expect_in("things.md", "| `strName` | String | required | in | a name \\| \"\\*\" for all |\n");
    expect_in("things.md", "| `\"\\|A\\|\"` | in | names between bars |\n");
}

TEST_F(ReferencePages, EnumerationsAreLinked) {
    expect_in("things.md",
              "| [ENUM_FLDARTTYP](enumerations.md#enum_fldarttyp) | "
              "`FLDARTTYP_DATUM` | in/out |");
    expect_in("enumerations.md", "| `FLDARTTYP_DATUM` | 5 | ");
}

TEST_F(ReferencePages, TheIndexListsClassesTopicsAndOperations) {
    expect_in("README.md", "| [clsX](#clsx) | 2 | A class. |\n");
    expect_in("README.md", "**[things](things.md)**: Finding things.\n");
    expect_in("README.md",
              "[XXX_Find](things.md#xxx_find),\n[Text (write)](things.md#text-write)\n");
}

TEST_F(ReferencePages, EveryPageSaysWhereItComesFrom) {
    for (const ReferencePage& one : pages) {
        EXPECT_TRUE(one.text.starts_with(reference_mark)) << one.file_name;
        EXPECT_FALSE(one.text.ends_with("\n\n")) << one.file_name;
    }
}

}  // namespace
}  // namespace cvdeveloper
