#include "cvdeveloper/automation/class_registry.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/expect_error.h"

namespace cvdeveloper {
namespace {

class Plain final : public Object {
  public:
    Variant invoke(std::string_view, InvokeKind, Arguments) override { return {}; }
    [[nodiscard]] std::string_view class_name() const noexcept override { return "Plain"; }
};

class ClassRegistry : public testing::Test {
  protected:
    void TearDown() override {
        clear_registry();
        set_message_handler(nullptr);
    }
};

TEST_F(ClassRegistry, CreatesANewObjectEachTimeWithoutRegardToCase) {
    register_class("Test.Plain", [] { return make_object<Plain>(); });
    const ObjectRef first = create_object("test.PLAIN");
    const ObjectRef second = create_object("Test.Plain");
    EXPECT_TRUE(first);
    EXPECT_NE(first.get(), second.get());
}

TEST_F(ClassRegistry, UnknownClassIsError429WithItsName) {
    expect_error(429, "",
                 "Objekterstellung durch ActiveX-Komponente nicht möglich (Test.Unbekannt)",
                 [] { create_object("Test.Unbekannt"); });
}

TEST_F(ClassRegistry, ClassThatIsTakenOutIsGone) {
    register_class("Test.Plain", [] { return make_object<Plain>(); });
    register_class("test.plain", nullptr);
    expect_error_number(429, [] { create_object("Test.Plain"); });
}

TEST_F(ClassRegistry, GivesTheSameRunningObject) {
    const auto running = make_object<Plain>();
    register_active_object("Test.Application", running);
    EXPECT_EQ(active_object("TEST.application"), running);
    register_active_object("Test.Application", nullptr);
    expect_error_number(429, [] { active_object("Test.Application"); });
}

TEST_F(ClassRegistry, MessagesGoToTheHandler) {
    std::vector<std::string> shown;
    set_message_handler([&](std::string_view text) { shown.emplace_back(text); });
    show_message("Pfadangabe fehlt.");
    EXPECT_EQ(shown, std::vector<std::string>{"Pfadangabe fehlt."});
}

}  // namespace
}  // namespace cvdeveloper
