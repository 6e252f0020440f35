#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "cvdeveloper/tools/file_system.h"
#include "cvdeveloper/tools/phone_list.h"
#include "cvdeveloper/tools/salutation_list.h"
#include "cvdeveloper/tools/tools.h"

namespace cvdeveloper {
namespace {

std::vector<const InterfaceTable*> tables() {
    static const Ref<LibraryObject> objects[] = {
        make_object<clsTools>(),
        make_object<clsSalutationList>(),
        make_object<clsPhoneList>(),
        make_object<clsFileSystem>(),
        make_object<Folder>("."),
        make_object<File>("."),
        make_object<FileCollection>("."),
        make_object<FolderCollection>("."),
        make_object<TextStream>(std::string()),
    };
    std::vector<const InterfaceTable*> list;
    for (const Ref<LibraryObject>& object : objects) {
        list.push_back(&object->table());
    }
    return list;
}

TEST(ToolsInterface, RowsFitTheFunctionsBehindThem) {
    for (const InterfaceTable* table : tables()) {
        for (const Operation* row : table->operations()) {
            ASSERT_EQ(row->parameters.size(), row->binding.parameter_types.size()) << row->name;
            for (std::size_t i = 0; i < row->parameters.size(); ++i) {
                const bool written = ((row->binding.writes >> i) & 1U) != 0;
                EXPECT_TRUE(!written || row->parameters[i].direction == Direction::InOut)
                    << row->name << ", " << row->parameters[i].name;
            }
        }
    }
}

TEST(ToolsInterface, EveryOperationAndArgumentIsExplained) {
    for (const InterfaceTable* table : tables()) {
        for (const Operation* row : table->operations()) {
            EXPECT_FALSE(row->help.what.empty()) << row->name;
            EXPECT_FALSE(row->help.errors.empty()) << row->name;
            EXPECT_FALSE(row->help.example.empty()) << row->name;
            EXPECT_EQ(row->help.result.empty(), row->binding.result.type == ValueType::Nothing)
                << row->name;
            for (const Parameter& parameter : row->parameters) {
                EXPECT_FALSE(parameter.help.empty()) << row->name << ", " << parameter.name;
            }
        }
    }
}

TEST(ToolsInterface, NumbersAreUsedOnceExceptForAPropertysTwoSides) {
    for (const InterfaceTable* table : tables()) {
        std::set<std::pair<std::int32_t, OperationKind>> used;
        for (const Operation* row : table->operations()) {
            EXPECT_TRUE(used.emplace(row->id, row->kind).second) << row->name;
        }
    }
}

TEST(ToolsInterface, TheToolsComeInTheirOrder) {
    const auto tools = make_object<clsTools>();
    std::vector<std::string_view> names;
    for (const Operation* row : tools->table().operations()) {
        names.push_back(row->name);
    }
    EXPECT_EQ(names, (std::vector<std::string_view>{
                         "StrList_DeleteFirst", "FormatCurrencyCV", "FormatNumber",
                         "FormatCurrency", "FormatPercent", "FormatDateTime", "MoveDate",
                         "IsArbeitstag", "IsFeiertag", "ReplacePlatzhalter", "GetSinglePlatzhalter",
                         "GetLandRS", "vbVal", "vbStr", "vbDir", "vbLike"}));
}

}  // namespace
}  // namespace cvdeveloper
