#include "cvdeveloper/public_classes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/enumerations.h"
#include "platform/text.h"

namespace cvdeveloper {
namespace {

// "AKT_Create", with its class in front, for messages.
std::string name_of(const InterfaceTable& table, const Operation& row) {
    return std::string(table.class_name()) + "." + std::string(row.name);
}

template <class Check>
void for_each_row(const Check& check) {
    for (const InterfaceTable* table : documented_classes()) {
        for (const Operation* row : table->operations()) {
            SCOPED_TRACE(name_of(*table, *row));
            check(*table, *row);
        }
    }
}

TEST(PublicClasses, NativeCallersPassByReferenceWhatTheRowSays) {
    for_each_row([](const InterfaceTable&, const Operation& row) {
        for (std::size_t i = 0; i < row.parameters.size(); ++i) {
            EXPECT_EQ(((row.binding.by_reference >> i) & 1U) != 0,
                      row.parameters[i].direction == Direction::InOut)
                << row.parameters[i].name << ": the row's bind names its parameters";
        }
    });
}

// The type library says no default of these: a native caller's 0 must be what the row means.
TEST(PublicClasses, DoublesAndDatesThatAreLeftOutAreZero) {
    for_each_row([](const InterfaceTable&, const Operation& row) {
        for (std::size_t i = 0; i < row.parameters.size(); ++i) {
            const ValueType type = row.binding.parameter_types[i].type;
            const Default& value = row.parameters[i].default_value;
            if (!value.required() && (type == ValueType::Double || type == ValueType::Date)) {
                EXPECT_EQ(to_double(value.value()), 0) << row.parameters[i].name;
            }
        }
    });
}

TEST(PublicClasses, EveryOperationIsExplained) {
    for_each_row([](const InterfaceTable&, const Operation& row) {
        EXPECT_FALSE(row.help.what.empty());
        EXPECT_FALSE(row.help.errors.empty());
        EXPECT_FALSE(row.help.example.empty());
        EXPECT_EQ(row.help.result.empty(), row.binding.result.type == ValueType::Nothing);
    });
}

TEST(PublicClasses, EveryExampleUsesItsOperation) {
    for_each_row([](const InterfaceTable&, const Operation& row) {
        EXPECT_NE(row.help.example.find(row.name), std::string_view::npos) << row.help.example;
    });
}

TEST(PublicClasses, EveryArgumentIsExplained) {
    for_each_row([](const InterfaceTable&, const Operation& row) {
        for (const Parameter& parameter : row.parameters) {
            EXPECT_FALSE(parameter.name.empty());
            EXPECT_FALSE(parameter.help.empty()) << parameter.name;
        }
    });
}

TEST(PublicClasses, ExplanationsEndAsSentencesAndFieldsOfTablesDoNot) {
    for_each_row([](const InterfaceTable&, const Operation& row) {
        for (const std::string_view text :
             {row.help.what, row.help.result, row.help.errors, row.help.tables}) {
            EXPECT_TRUE(text.empty() || text.ends_with('.')) << text;
        }
        for (const Parameter& parameter : row.parameters) {
            EXPECT_FALSE(parameter.help.ends_with('.')) << parameter.help;
        }
    });
}

TEST(PublicClasses, ArgumentsAreThoseOfTheFunctionsBehindTheRows) {
    for_each_row([](const InterfaceTable&, const Operation& row) {
        ASSERT_EQ(row.parameters.size(), row.binding.parameter_types.size());
        EXPECT_NE(row.binding.call, nullptr);
        for (std::size_t i = 0; i < row.parameters.size(); ++i) {
            const bool changes = ((row.binding.writes >> i) & 1U) != 0;
            EXPECT_TRUE(!changes || row.parameters[i].direction == Direction::InOut)
                << row.parameters[i].name << " is changed and not in/out";
        }
    });
}

TEST(PublicClasses, RequiredArgumentsComeBeforeOptionalOnes) {
    for_each_row([](const InterfaceTable&, const Operation& row) {
        const bool in_order = std::ranges::is_partitioned(
            row.parameters, [](const Parameter& p) { return p.default_value.required(); });
        EXPECT_TRUE(in_order);
    });
}

TEST(PublicClasses, ArgumentsOfAnOperationHaveDifferentNames) {
    for_each_row([](const InterfaceTable&, const Operation& row) {
        std::set<std::string> names;
        for (const Parameter& parameter : row.parameters) {
            EXPECT_TRUE(names.insert(lower_case(parameter.name)).second) << parameter.name;
        }
    });
}

TEST(PublicClasses, ANameIsUsedOnceOnEachSide) {
    std::set<std::tuple<std::string_view, std::string, bool>> used;
    for_each_row([&used](const InterfaceTable& table, const Operation& row) {
        const bool writes = row.kind == OperationKind::Put;
        EXPECT_TRUE(used.emplace(table.class_name(), lower_case(row.name), writes).second);
    });
}

TEST(PublicClasses, ANumberBelongsToOneNameAndEachSideHasItOnce) {
    std::map<std::pair<std::string_view, std::int32_t>, std::string_view> names;
    std::set<std::tuple<std::string_view, std::int32_t, OperationKind>> used;
    for_each_row([&](const InterfaceTable& table, const Operation& row) {
        const auto [found, is_new] = names.try_emplace({table.class_name(), row.id}, row.name);
        EXPECT_EQ(found->second, row.name) << "both have the number " << row.id;
        EXPECT_TRUE(used.emplace(table.class_name(), row.id, row.kind).second);
        EXPECT_GT(row.id, 0) << "0 would be the class's default member";
    });
}

TEST(PublicClasses, WritingAPropertyHasItsReadingsNumberAndName) {
    for_each_row([](const InterfaceTable& table, const Operation& row) {
        if (row.kind == OperationKind::Put) {
            const Operation* read = table.find(row.name, InvokeKind::Get);
            ASSERT_NE(read, nullptr);
            EXPECT_EQ(read->id, row.id);
        }
    });
}

TEST(PublicClasses, OfferAsManyOperationsAsEver) {
    std::map<std::string_view, std::set<std::string_view>> names;
    for_each_row([&names](const InterfaceTable& table, const Operation& row) {
        names[table.class_name()].insert(row.name);
    });
    EXPECT_EQ(names["Application"].size(), 308U);
    EXPECT_EQ(names["clsBase"].size(), 46U);
    EXPECT_EQ(names["clsTools"].size(), 16U);
    EXPECT_EQ(names["clsSalutationList"].size(), 12U);
    EXPECT_EQ(names["clsPhoneList"].size(), 10U);
    EXPECT_EQ(names["clsFileSystem"].size(), 11U);
}

TEST(PublicClasses, EveryTopicAndEveryNumberOfAnEnumerationIsExplained) {
    for (const InterfaceTable* table : documented_classes()) {
        EXPECT_FALSE(table->help().empty()) << table->class_name();
        for (const TopicRows& topic : table->topics()) {
            EXPECT_FALSE(topic.help.empty()) << topic.name;
        }
    }
    for (const Enumeration& enumeration : enumerations()) {
        EXPECT_FALSE(enumeration.help.empty()) << enumeration.name;
        for (const EnumerationMember& member : enumeration.members) {
            EXPECT_FALSE(member.help.empty()) << member.name;
        }
    }
}

}  // namespace
}  // namespace cvdeveloper
