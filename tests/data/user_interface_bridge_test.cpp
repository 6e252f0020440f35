#include "cvdeveloper/data/user_interface_bridge.h"

#include <gtest/gtest.h>

#include "cvdeveloper/automation/class_registry.h"
#include "support/expect_error.h"
#include "support/recording_host.h"

namespace cvdeveloper {
namespace {

class UserInterfaceBridgeTest : public testing::Test {
  protected:
    RecordingHost host;
    Ref<Application> app = host.attached();
    Ref<clsBase> base = app->oBase();
};

class ConnectorBridgeTest : public testing::Test {
  protected:
    RecordingHost host;
    Ref<Application> app = host.connected(".");
    Ref<clsBase> base = app->oBase();
};

TEST_F(UserInterfaceBridgeTest, FindHasTheFormFind) {
    base->Pane_Find("F_AD", "Ort = 'Essen'");
    EXPECT_EQ(host.log(), (Lines{"Panes F_AD", "Find Ort = 'Essen'"}));
}

TEST_F(UserInterfaceBridgeTest, FindDsnFindsAndShows) {
    base->Pane_FindDSN("F_AD", "K1");
    EXPECT_EQ(host.log(), (Lines{"Panes F_AD", "FindDsn K1", "Show"}));
}

TEST_F(UserInterfaceBridgeTest, ShowShows) {
    base->Pane_Show("F_AD");
    EXPECT_EQ(host.log(), (Lines{"Panes F_AD", "Show"}));
}

TEST_F(UserInterfaceBridgeTest, AnUnknownFormIsPassedOver) {
    base->Pane_Find("F_UNBEKANNT", "1=1");
    base->Pane_FindDSN("F_UNBEKANNT", "K1");
    base->Pane_Show("F_UNBEKANNT");
    EXPECT_EQ(host.log(), (Lines{"Panes F_UNBEKANNT", "Panes F_UNBEKANNT", "Panes F_UNBEKANNT"}));
}

TEST_F(UserInterfaceBridgeTest, CreateProgressMakesANewWindowEachTime) {
    register_class("clqexstdc10.cProgress", [] { return make_object<Application>(); });
    const ObjectRef first = base->CV_CreateProgress();
    const ObjectRef second = base->CV_CreateProgress();
    register_class("clqexstdc10.cProgress", nullptr);
    EXPECT_TRUE(first);
    EXPECT_FALSE(first == second);
}

TEST_F(UserInterfaceBridgeTest, CreateProgressWithoutTheComponentIsError429) {
    expect_error_number(429, [&] { base->CV_CreateProgress(); });
}

TEST_F(UserInterfaceBridgeTest, ParseAndFillHandsTheFlagBack) {
    RecordSet details = host.record_set({});
    bool show = false;
    EXPECT_EQ(base->CV_ParseAndFill(details, 3, show), "gelesen");
    EXPECT_TRUE(show);
    EXPECT_EQ(host.log(), Lines{"ParseAndFill 3, Falsch"});
}

TEST_F(UserInterfaceBridgeTest, ParseAndFillByNameWritesTheFlagBackAndHasADefaultForIt) {
    std::vector<Variant> arguments{host.record_set({}), std::int16_t{1}, false};
    base->invoke("CV_ParseAndFill", InvokeKind::Method,
                 {.values = arguments, .by_reference = 0b100});
    EXPECT_EQ(arguments[2], Variant(true));
    arguments = {host.record_set({}), std::int16_t{1}};
    EXPECT_EQ(base->invoke("CV_ParseAndFill", InvokeKind::Method, {.values = arguments}),
              Variant("gelesen"));
}

TEST_F(ConnectorBridgeTest, FormsDoNothing) {
    host.clear_log();
    base->Pane_Find("F_AKT", "1=1");
    base->Pane_FindDSN("F_AKT", "K1");
    base->Pane_Show("F_AKT");
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(ConnectorBridgeTest, CreateProgressGivesTheConnectorsOwn) {
    host.clear_log();
    EXPECT_TRUE(base->CV_CreateProgress());
    EXPECT_EQ(host.log(), Lines{"Progress"});
}

TEST_F(ConnectorBridgeTest, ParseAndFillGoesToTheConnector) {
    host.clear_log();
    RecordSet details = host.record_set({});
    bool show = true;
    EXPECT_EQ(base->CV_ParseAndFill(details, 7, show), "gelesen");
    EXPECT_FALSE(show);
    EXPECT_EQ(host.log(), Lines{"ParseAndFill 7, Wahr"});
}

TEST(UserInterfaceBridgeWithoutASession, RaisesError601) {
    const auto app = make_object<Application>();
    const auto base = app->oBase();
    const auto expect_601 = [](auto call) {
        expect_error(601, "", "CVDeveloper wurde nicht initialisiert", call);
    };
    expect_601([&] { base->CV_CreateProgress(); });
    expect_601([&] {
        RecordSet nothing;
        bool show = false;
        base->CV_ParseAndFill(nothing, 1, show);
    });
    expect_601([&] { base->Pane_Find("F_AKT", "1=1"); });
    expect_601([&] { base->Pane_FindDSN("F_AKT", "K1"); });
    expect_601([&] { base->Pane_Show("F_AKT"); });
}

}  // namespace
}  // namespace cvdeveloper
