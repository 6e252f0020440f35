#include <gtest/gtest.h>

#include <array>

#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/automation/error.h"
#include "support/expect_error.h"

namespace cvdeveloper {
namespace {

// A small class with every kind of argument.
class Sample final : public LibraryObject {
  public:
    static constexpr std::string_view automation_name = "Sample";

    std::string Join(std::string_view strLeft, std::string_view strRight) {
        return std::string(strLeft) + "|" + std::string(strRight);
    }
    std::string Describe(bool blnFlag, std::int16_t intSmall, std::int32_t lngNumber,
                         double dblNumber, Date datDay) {
        return std::to_string(blnFlag) + " " + std::to_string(intSmall) + " " +
               std::to_string(lngNumber) + " " + std::to_string(dblNumber) + " " +
               std::to_string(datDay.days);
    }
    void Take(Variant& varBuffer, bool& blnDone) {
        varBuffer = "left";
        blnDone = true;
    }
    void TakeAndFail(Variant& varBuffer) {
        varBuffer = "left";
        throw AutomationError(601, "", "no");
    }
    std::string ReadOnly(std::string_view strText) { return std::string(strText); }
    bool IsNothing(ObjectRef object) { return !object; }
    bool IsSame(Ref<Sample> other) { return other.get() == this; }
    std::string Name() { return name_; }
    void put_Name(std::string_view strName) { name_ = strName; }

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    std::string name_;
};

constexpr Parameter join_parameters[] = {
    {.name = "strLeft"},
    {.name = "strRight", .default_value = "right"},
};
constexpr Parameter describe_parameters[] = {
    {.name = "blnFlag", .default_value = true},   {.name = "intSmall", .default_value = 1},
    {.name = "lngNumber", .default_value = 2},    {.name = "dblNumber", .default_value = 0.5},
    {.name = "datDay", .default_value = Date{3}},
};
constexpr Parameter take_parameters[] = {
    {.name = "varBuffer", .direction = Direction::InOut},
    {.name = "blnDone", .default_value = false, .direction = Direction::InOut},
};
constexpr Parameter buffer_parameters[] = {
    {.name = "varBuffer", .direction = Direction::InOut},
};
constexpr Parameter text_parameters[] = {
    {.name = "strText", .direction = Direction::InOut},
};
constexpr Parameter object_parameters[] = {{.name = "oObject"}};
constexpr Parameter name_parameters[] = {{.name = "strName"}};

constexpr Operation rows[] = {
    {1, "Join", OperationKind::Method, bind<&Sample::Join>, join_parameters, {"Joins."}},
    {2,
     "Describe",
     OperationKind::Method,
     bind<&Sample::Describe>,
     describe_parameters,
     {"Tells."}},
    {3, "Take", OperationKind::Method, bind<&Sample::Take>, take_parameters, {"Changes."}},
    {4,
     "TakeAndFail",
     OperationKind::Method,
     bind<&Sample::TakeAndFail>,
     buffer_parameters,
     {"Fails."}},
    {5, "ReadOnly", OperationKind::Method, bind<&Sample::ReadOnly>, text_parameters, {"Reads."}},
    {6, "IsNothing", OperationKind::Method, bind<&Sample::IsNothing>, object_parameters, {"Asks."}},
    {7, "IsSame", OperationKind::Method, bind<&Sample::IsSame>, object_parameters, {"Compares."}},
    {8, "Name", OperationKind::Get, bind<&Sample::Name>, {}, {"Reads the name."}},
    {8, "Name", OperationKind::Put, bind<&Sample::put_Name>, name_parameters, {"Sets the name."}},
};

const InterfaceTable& Sample::table() const noexcept {
    static const InterfaceTable all("Sample", "A class for tests.",
                                    {{"sample", "Everything.", rows}});
    return all;
}

TEST(Dispatch, FindsMembersWithoutRegardToCase) {
    const auto sample = make_object<Sample>();
    EXPECT_EQ(sample->call("jOIN", "a", "b"), Variant("a|b"));
}

TEST(Dispatch, FillsInDefaultsOfArgumentsThatAreLeftOut) {
    const auto sample = make_object<Sample>();
    EXPECT_EQ(sample->call("Join", "a"), Variant("a|right"));
    EXPECT_EQ(sample->call("Describe"), Variant("1 1 2 0.500000 3.000000"));
    EXPECT_EQ(sample->call("Describe", Missing{}, std::int16_t{7}),
              Variant("1 7 2 0.500000 3.000000"));
}

TEST(Dispatch, ConvertsArgumentsToTheDeclaredTypes) {
    const auto sample = make_object<Sample>();
    EXPECT_EQ(sample->call("Describe", "Wahr", "12", 2.5, "1,5", "31.12.1899"),
              Variant("1 12 2 1.500000 1.000000"));
    EXPECT_EQ(sample->call("Join", 1.5, true), Variant("1,5|Wahr"));
}

class Price final : public LibraryObject {
  public:
    std::int32_t Value() { return 12; }
    [[nodiscard]] const InterfaceTable& table() const noexcept override {
        static constexpr Operation members[] = {
            {0, "Value", OperationKind::Get, bind<&Price::Value>, {}, {"Tells."}}};
        static const InterfaceTable all("Price", "A value.", {{"price", "Everything.", members}});
        return all;
    }
};

TEST(Dispatch, TakesTheDefaultMemberOfAnObjectThatIsGivenForAPlainValue) {
    const auto sample = make_object<Sample>();
    EXPECT_EQ(sample->call("Join", ObjectRef(make_object<Price>()), "b"), Variant("12|b"));
    expect_error(13, "", "Typen unverträglich (Join, Argument strLeft)",
                 [&] { sample->call("Join", ObjectRef(sample), "b"); });
}

TEST(Dispatch, PlacesNamedArgumentsWithoutRegardToCase) {
    const auto sample = make_object<Sample>();
    std::array<Variant, 2> values{"r", "l"};
    const std::array<std::string_view, 2> names{"STRRIGHT", "strleft"};
    EXPECT_EQ(sample->invoke("Join", InvokeKind::Method, {.values = values, .names = names}),
              Variant("l|r"));
}

TEST(Dispatch, WritesByReferenceArgumentsBackOnSuccess) {
    const auto sample = make_object<Sample>();
    std::array<Variant, 2> values{"before", false};
    sample->invoke("Take", InvokeKind::Method, {.values = values, .by_reference = 3});
    EXPECT_EQ(values[0], Variant("left"));
    EXPECT_EQ(values[1], Variant(true));
}

TEST(Dispatch, LeavesByReferenceArgumentsAloneOnFailure) {
    const auto sample = make_object<Sample>();
    std::array<Variant, 1> values{"before"};
    expect_error(601, "", "no", [&] {
        sample->invoke("TakeAndFail", InvokeKind::Method, {.values = values, .by_reference = 1});
    });
    EXPECT_EQ(values[0], Variant("before"));
}

TEST(Dispatch, DoesNotConvertTheCallersVariableThatIsOnlyRead) {
    const auto sample = make_object<Sample>();
    std::array<Variant, 1> values{std::int32_t{5}};
    EXPECT_EQ(sample->invoke("ReadOnly", InvokeKind::Method, {.values = values, .by_reference = 1}),
              Variant("5"));
    EXPECT_EQ(values[0], Variant(std::int32_t{5}));
}

TEST(Dispatch, TakesNullForNothingWhereAnObjectIsAskedFor) {
    const auto sample = make_object<Sample>();
    EXPECT_EQ(sample->call("IsNothing", Null{}), Variant(true));
    EXPECT_EQ(sample->call("IsSame", sample), Variant(true));
}

TEST(Dispatch, ReadsAndWritesProperties) {
    const auto sample = make_object<Sample>();
    sample->put("name", "Meier");
    EXPECT_EQ(sample->get("NAME"), Variant("Meier"));
}

TEST(Dispatch, MisspeltMemberIsError438WithTheNearestNames) {
    const auto sample = make_object<Sample>();
    expect_error(438, "",
                 "Objekt unterstützt diese Eigenschaft oder Methode nicht (Sample.Jion). Meinten "
                 "Sie Join?",
                 [&] { sample->call("Jion"); });
    expect_error(438, "",
                 "Objekt unterstützt diese Eigenschaft oder Methode nicht (Sample.Unbekanntes)",
                 [&] { sample->call("Unbekanntes"); });
}

TEST(Dispatch, WritingWhatCanOnlyBeCalledIsError438) {
    const auto sample = make_object<Sample>();
    expect_error_number(438, [&] { sample->put("Join", "x"); });
}

TEST(Dispatch, NullIntoATextIsError94NamingOperationAndArgument) {
    const auto sample = make_object<Sample>();
    expect_error(94, "", "Unzulässige Verwendung von Null (Join, Argument strRight)",
                 [&] { sample->call("Join", "a", Null{}); });
}

TEST(Dispatch, TextThatIsNoNumberIsError13NamingOperationAndArgument) {
    const auto sample = make_object<Sample>();
    expect_error(13, "", "Typen unverträglich (Describe, Argument lngNumber)",
                 [&] { sample->call("Describe", true, std::int16_t{1}, "zwölf"); });
}

TEST(Dispatch, NumberTooLargeIsError6NamingOperationAndArgument) {
    const auto sample = make_object<Sample>();
    expect_error(6, "", "Überlauf (Describe, Argument intSmall)",
                 [&] { sample->call("Describe", true, std::int32_t{40000}); });
}

TEST(Dispatch, MissingRequiredArgumentIsError449) {
    const auto sample = make_object<Sample>();
    expect_error(449, "", "Argument ist nicht optional (Join, Argument strLeft)",
                 [&] { sample->call("Join"); });
}

TEST(Dispatch, TooManyArgumentsAreError450) {
    const auto sample = make_object<Sample>();
    expect_error(450, "",
                 "Falsche Anzahl an Argumenten (Join nimmt höchstens 2 Argumente, 3 wurden "
                 "übergeben)",
                 [&] { sample->call("Join", "a", "b", "c"); });
}

TEST(Dispatch, UnknownArgumentNameIsError448WithTheNearestName) {
    const auto sample = make_object<Sample>();
    std::array<Variant, 1> values{"l"};
    const std::array<std::string_view, 1> names{"strLeftt"};
    expect_error(
        448, "",
        "Benanntes Argument nicht gefunden (Join, Argument strLeftt. Meinten Sie strLeft?)",
        [&] { sample->invoke("Join", InvokeKind::Method, {.values = values, .names = names}); });
}

TEST(Dispatch, ArgumentGivenTwiceIsError448) {
    const auto sample = make_object<Sample>();
    const std::array<std::string_view, 1> one_name{"strLeft"};
    std::array<Variant, 2> values{"a", "b"};
    expect_error(
        448, "", "Benanntes Argument nicht gefunden (Join, Argument strLeft ist doppelt angegeben)",
        [&] { sample->invoke("Join", InvokeKind::Method, {.values = values, .names = one_name}); });
    const std::array<std::string_view, 2> two_names{"strLeft", "strleft"};
    values = {"a", "b"};
    expect_error_number(448, [&] {
        sample->invoke("Join", InvokeKind::Method, {.values = values, .names = two_names});
    });
}

TEST(Dispatch, ObjectOfAnotherClassIsError13) {
    class Other final : public Object {
      public:
        Variant invoke(std::string_view, InvokeKind, Arguments) override { return {}; }
        [[nodiscard]] std::string_view class_name() const noexcept override { return "Other"; }
    };
    const auto sample = make_object<Sample>();
    expect_error(13, "", "Typen unverträglich (IsSame, Argument oObject, erwartet Sample)",
                 [&] { sample->call("IsSame", make_object<Other>()); });
}

TEST(InterfaceTable, OrdersOperationsByIdWithReadingBeforeWriting) {
    const auto sample = make_object<Sample>();
    const auto operations = sample->table().operations();
    ASSERT_EQ(operations.size(), 9U);
    EXPECT_EQ(operations[7]->kind, OperationKind::Get);
    EXPECT_EQ(operations[8]->kind, OperationKind::Put);
}

TEST(InterfaceTable, TypesFollowFromTheFunction) {
    const Binding& describe = rows[1].binding;
    ASSERT_EQ(describe.parameter_types.size(), 5U);
    EXPECT_EQ(describe.parameter_types[1].type, ValueType::Int16);
    EXPECT_EQ(describe.parameter_types[4].type, ValueType::Date);
    EXPECT_EQ(describe.result.type, ValueType::String);
    EXPECT_EQ(describe.writes, 0U);
    EXPECT_EQ(rows[2].binding.writes, 3U);
    EXPECT_EQ(rows[4].binding.writes, 0U);
}

}  // namespace
}  // namespace cvdeveloper
