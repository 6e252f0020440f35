#include "cvdeveloper/public_classes.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "platform/text.h"

namespace cvdeveloper {
namespace {

TEST(PublicClasses, GiveEachNumberToOneMemberAlone) {
    for (const InterfaceTable* table : public_classes()) {
        std::map<std::int32_t, std::string_view> names;
        for (const Operation* operation : table->operations()) {
            const auto [place, is_new] = names.emplace(operation->id, operation->name);
            EXPECT_TRUE(is_new || place->second == operation->name)
                << table->class_name() << " " << operation->id << ": " << place->second << " and "
                << operation->name;
        }
    }
}

TEST(PublicClasses, HaveNoTwoMembersOfOneName) {
    for (const InterfaceTable* table : public_classes()) {
        std::set<std::pair<std::string, OperationKind>> members;
        for (const Operation* operation : table->operations()) {
            EXPECT_TRUE(members.emplace(lower_case(operation->name), operation->kind).second)
                << table->class_name() << "." << operation->name;
        }
    }
}

TEST(PublicClasses, DescribeEveryMemberAndArgument) {
    for (const InterfaceTable* table : public_classes()) {
        for (const Operation* operation : table->operations()) {
            const std::string member =
                std::string(table->class_name()) + "." + std::string(operation->name);
            EXPECT_FALSE(operation->help.what.empty()) << member;
            EXPECT_FALSE(operation->help.example.empty()) << member;
            EXPECT_EQ(operation->parameters.size(), operation->binding.parameter_types.size())
                << member;
            for (const Parameter& parameter : operation->parameters) {
                EXPECT_FALSE(parameter.help.empty()) << member << ", " << parameter.name;
            }
        }
    }
}

}  // namespace
}  // namespace cvdeveloper
