#include <gtest/gtest.h>

#include "cvdeveloper/tools/tools.h"
#include "platform/clock.h"
#include "platform/regional.h"
#include "support/expect_error.h"
#include "tools/fake_application.h"

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
    Ref<FakeApplication> application = make_object<FakeApplication>();
    Ref<clsTools> tools = make_object<clsTools>(session_with(application));
};

TEST_F(Placeholders, TodayIsTheShortDate) {
    EXPECT_EQ(replace("Essen, den {HEUTE}"), "Essen, den " + today());
    EXPECT_EQ(single("heute"), today());
    EXPECT_TRUE(application->asked.empty());
}

TEST_F(Placeholders, NowIsWhatTheHostMakesOfIt) {
    EXPECT_EQ(single("Jetzt"), "15.11.2026 11:25:39");
    application->util->general_date = "";
    EXPECT_EQ(single("JETZT", false, "nie"), "nie");
    application->util->general_date = "a\r\nb";
    EXPECT_EQ(single("JETZT", true), "a<br>b");
}

TEST_F(Placeholders, OthersAreAskedOfTheHostWithNameAndStatementAsGiven) {
    application->placeholder = "Meier";
    EXPECT_EQ(replace("Herr {Name}!"), "Herr Meier!");
    EXPECT_EQ(application->asked, std::vector<std::string>{"Name|SELECT 1|"});
    EXPECT_EQ(tools->GetSinglePlatzhalter("X", RecordSet(application->rows), "sql"), "Meier");
    EXPECT_EQ(application->asked.back(), "X|sql|rs");
}

TEST_F(Placeholders, BlanksAndCarriageReturnsMakeBracesOrdinaryText) {
    for (const char* text : {"a {b c} d", "{ A }", "{A\r\n}", "{ }", "}", "a}b", "x } y"}) {
        EXPECT_EQ(replace(text), text);
    }
    EXPECT_TRUE(application->asked.empty());
}

TEST_F(Placeholders, ALineFeedDoesNotEndAPlaceholder) {
    application->placeholder = "v";
    EXPECT_EQ(replace("{A\nB}"), "v");
    EXPECT_EQ(application->asked.back(), "A\nB|SELECT 1|");
}

TEST_F(Placeholders, AnOpenPlaceholderAtTheEndIsDropped) {
    EXPECT_EQ(replace("x {HEUTE"), "x ");
    EXPECT_EQ(replace("{"), "");
    EXPECT_EQ(replace("x {HEUTE y"), "x {HEUTE y");
}

TEST_F(Placeholders, EmptyBracesAskForThePlaceholderWithoutAName) {
    EXPECT_EQ(replace("}{}", false, "-"), "}-");
    EXPECT_EQ(application->asked, std::vector<std::string>{"|SELECT 1|"});
}

TEST_F(Placeholders, ABraceInsideBracesBelongsToTheName) {
    application->placeholder = "v";
    EXPECT_EQ(replace("{a{b}c}"), "vc}");
    EXPECT_EQ(application->asked, std::vector<std::string>{"a{b|SELECT 1|"});
    EXPECT_EQ(replace("{a {b}"), "{a v");
}

TEST_F(Placeholders, LineBreaksBecomeHtmlOnlyWhenAsked) {
    application->placeholder = "a\r\nb";
    EXPECT_EQ(replace("{X}\r\n", true), "a<br>b\r\n");
    EXPECT_EQ(replace("{X}", false), "a\r\nb");
}

TEST_F(Placeholders, HostsBeforeBuild133HaveNone) {
    application->build = 132;
    expect_error(-2147221403, "GetSinglePlatzhalter",
                 "Die Funktion 'GetSinglePlatzhalter' benötigt mind. Corvanta Build133",
                 [&] { replace("a {NAME}"); });
    EXPECT_TRUE(application->asked.empty());
    EXPECT_EQ(single("HEUTE"), today());
}

TEST_F(Placeholders, OutsideARunningApplicationThereAreNone) {
    const Ref<clsTools> alone = make_object<clsTools>();
    expect_error(-2147221403, "GetSinglePlatzhalter",
                 "Die Funktion 'GetSinglePlatzhalter' steht in der Connectorinitialisierung nicht "
                 "zur Verfügung",
                 [&] { alone->GetSinglePlatzhalter("NAME", none, ""); });
    EXPECT_EQ(alone->GetSinglePlatzhalter("HEUTE", none, ""), today());
    expect_error_number(601, [&] { alone->GetSinglePlatzhalter("JETZT", none, ""); });
}

TEST_F(Placeholders, CountriesComeFromOneStatement) {
    EXPECT_EQ(tools->GetLandRS().object(), ObjectRef(application->rows));
    EXPECT_EQ(application->asked,
              std::vector<std::string>{
                  "SELECT RIGHT(postorte.alort,4) AS Id, postorte.oname AS Land, postorte.ozusatz "
                  "AS LandKurz, postplz.vorwahl As Vorwahl FROM postplz INNER JOIN postorte ON "
                  "postplz.alort = postorte.alort WHERE postorte.alort LIKE 'land%' ORDER BY "
                  "postorte.oname "});
    expect_error(601, "", "CVDeveloper wurde nicht initialisiert",
                 [] { make_object<clsTools>()->GetLandRS(); });
}

TEST_F(Placeholders, NothingAsARecordSetIsTakenByName) {
    application->placeholder = "v";
    EXPECT_EQ(static_cast<Object&>(*tools).call("ReplacePlatzhalter", "{X}", Null{}, ""),
              Variant("v"));
}

}  // namespace
}  // namespace cvdeveloper
