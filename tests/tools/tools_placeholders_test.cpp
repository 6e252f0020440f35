#include <gtest/gtest.h>

#include "cvdeveloper/tools/tools.h"
#include "platform/clock.h"
#include "platform/regional.h"
#include "support/expect_error.h"
#include "support/recording_host.h"

namespace cvdeveloper {
namespace {

std::string today() {
    return regional::format_date(now(), regional::DateFormat::ShortDate);
}

class Placeholders : public testing::Test {
  protected:
    std::string replace(std::string_view text, bool html = false, std::string_view empty = {}) {
        return tools->ReplacePlatzhalter(text, none, "SELECT 1", html, empty);
    }
    std::string single(std::string_view name, bool html = false, std::string_view empty = {}) {
        return tools->GetSinglePlatzhalter(name, none, "SELECT 1", html, empty);
    }

    RecordSet none;
    RecordingHost host;
    Ref<Application> app = host.attached();
    Ref<clsTools> tools = app->oTools();
};

TEST_F(Placeholders, TodayIsTheShortDate) {
    EXPECT_EQ(replace("Essen, den {HEUTE}"), "Essen, den " + today());
    EXPECT_EQ(single("heute"), today());
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(Placeholders, NowIsWhatTheHostMakesOfIt) {
    EXPECT_TRUE(single("Jetzt").starts_with(today().substr(0, 2)));
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(Placeholders, OthersAreAskedOfTheHostWithNameAndStatementAsGiven) {
    EXPECT_EQ(replace("Herr {Name}!"), "Herr <Name>!");
    EXPECT_EQ(host.log(), Lines{"Get_Platzhalter Name, SELECT 1"});
}

TEST_F(Placeholders, BlanksAndCarriageReturnsMakeBracesOrdinaryText) {
    for (const char* text : {"a {b c} d", "{ A }", "{A\r\n}", "{ }", "}", "a}b", "x } y"}) {
        EXPECT_EQ(replace(text), text);
    }
    EXPECT_EQ(host.log(), Lines{});
}

TEST_F(Placeholders, ALineFeedDoesNotEndAPlaceholder) {
    EXPECT_EQ(replace("{A\nB}"), "<A\nB>");
}

TEST_F(Placeholders, AnOpenPlaceholderAtTheEndIsDropped) {
    EXPECT_EQ(replace("x {HEUTE"), "x ");
    EXPECT_EQ(replace("{"), "");
    EXPECT_EQ(replace("x {HEUTE y"), "x {HEUTE y");
}

TEST_F(Placeholders, EmptyBracesAskForThePlaceholderWithoutAName) {
    host.answer_placeholder("", "");
    EXPECT_EQ(replace("}{}", false, "-"), "}-");
    EXPECT_EQ(host.log(), Lines{"Get_Platzhalter , SELECT 1"});
}

TEST_F(Placeholders, ABraceInsideBracesBelongsToTheName) {
    EXPECT_EQ(replace("{a{b}c}"), "<a{b>c}");
    EXPECT_EQ(replace("{a {b}"), "{a <b>");
}

TEST_F(Placeholders, LineBreaksBecomeHtmlOnlyWhenAsked) {
    host.answer_placeholder("X", "a\r\nb");
    EXPECT_EQ(replace("{X}\r\n", true), "a<br>b\r\n");
    EXPECT_EQ(replace("{X}", false), "a\r\nb");
}

TEST_F(Placeholders, TheDefaultStandsForAnEmptyValueAsItIs) {
    host.answer_placeholder("X", "");
    EXPECT_EQ(single("X", true, "a\r\nb"), "a\r\nb");
    EXPECT_EQ(single("X"), "");
}

TEST_F(Placeholders, HostsBeforeBuild133HaveNone) {
    host.set_build(132);
    expect_error(-2147221403, "GetSinglePlatzhalter",
                 "Die Funktion 'GetSinglePlatzhalter' benötigt mind. Corvanta Build133",
                 [&] { replace("a {NAME}"); });
    EXPECT_EQ(host.log(), Lines{});
    EXPECT_EQ(single("HEUTE"), today());
}

TEST_F(Placeholders, OutsideARunningApplicationThereAreNone) {
    const auto alone = make_object<clsTools>();
    expect_error(-2147221403, "GetSinglePlatzhalter",
                 "Die Funktion 'GetSinglePlatzhalter' steht in der Connectorinitialisierung nicht "
                 "zur Verfügung",
                 [&] { alone->GetSinglePlatzhalter("NAME", none, ""); });
    EXPECT_EQ(alone->GetSinglePlatzhalter("HEUTE", none, ""), today());
    expect_error_number(601, [&] { alone->GetSinglePlatzhalter("JETZT", none, ""); });
}

TEST_F(Placeholders, CountriesComeFromOneStatement) {
    tools->GetLandRS();
    EXPECT_EQ(host.log(),
              Lines{"SELECT RIGHT(postorte.alort,4) AS Id, postorte.oname AS Land, "
                    "postorte.ozusatz AS LandKurz, postplz.vorwahl As Vorwahl FROM postplz INNER "
                    "JOIN postorte ON postplz.alort = postorte.alort WHERE postorte.alort LIKE "
                    "'land%' ORDER BY postorte.oname "});
    expect_error(601, "", "CVDeveloper wurde nicht initialisiert",
                 [] { make_object<clsTools>()->GetLandRS(); });
}

TEST_F(Placeholders, NothingAsARecordSetIsTakenByName) {
    EXPECT_EQ(static_cast<Object&>(*tools).call("ReplacePlatzhalter", "{X}", Null{}, ""),
              Variant("<X>"));
}

}  // namespace
}  // namespace cvdeveloper
