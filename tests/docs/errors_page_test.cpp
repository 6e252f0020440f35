#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/text.h"
#include "support/recording_host.h"
#include "support/standalone_application.h"

// docs/errors.md tells the numbers and texts that the code raises, all of them and no others.
namespace cvdeveloper {
namespace {

using Cells = std::vector<std::string>;

std::string source_file(const std::string& path) {
    std::ifstream file(std::string(CVDEVELOPER_SOURCE_DIR "/") + path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Cells cells_of(std::string line) {
    Cells cells;
    take_first(line, "|");
    while (!line.empty()) {
        cells.emplace_back(trim_blanks(take_first(line, "|")));
    }
    return cells;
}

// The rows of the table under a heading, without the table's head.
std::vector<Cells> table_under(const std::string& heading) {
    std::string page = source_file("docs/errors.md");
    const std::size_t begin = page.find("\n## " + heading + "\n");
    if (begin == std::string::npos) {
        return {};
    }
    page = page.substr(begin + 1);
    page = page.substr(0, page.find("\n## "));
    std::vector<Cells> rows;
    while (!page.empty()) {
        const std::string line = take_first(page, "\n");
        if (line.starts_with('|')) {
            rows.push_back(cells_of(line));
        }
    }
    rows.erase(rows.begin(), rows.begin() + 2);
    return rows;
}

std::map<std::string, std::string> first_cells(const std::vector<Cells>& rows) {
    std::map<std::string, std::string> texts;
    for (const Cells& row : rows) {
        EXPECT_TRUE(texts.emplace(row[0], row[1]).second) << row[0] << " stands there twice";
        for (const std::string& cell : row) {
            EXPECT_FALSE(cell.empty()) << row[0];
        }
    }
    return texts;
}

TEST(ErrorsPage, ListsTheRuntimesErrorsWithTheirTexts) {
    constexpr std::int32_t last_number = 0xFFFF;
    const std::string_view no_text = text_of(static_cast<RuntimeError>(0));
    std::map<std::string, std::string> expected;
    for (std::int32_t number = 1; number <= last_number; ++number) {
        const std::string_view text = text_of(static_cast<RuntimeError>(number));
        if (text != no_text) {
            expected.emplace(std::to_string(number), text);
        }
    }
    EXPECT_EQ(first_cells(table_under("The runtime's")), expected);
}

TEST(ErrorsPage, ListsTheStandaloneHostsErrorsWithTheirNames) {
    const std::string header = source_file("host/errors.h");
    const std::regex member("\n    (\\w+) = (-?\\d+),");
    std::map<std::string, std::string> expected;
    for (std::sregex_iterator found(header.begin(), header.end(), member), end; found != end;
         ++found) {
        expected.emplace((*found)[2], (*found)[1]);
    }
    EXPECT_GT(expected.size(), 10U);
    EXPECT_EQ(first_cells(table_under("The stand-alone host's")), expected);
}

class ErrorsPageOfTheLibrary : public StandaloneApplicationTest {
  protected:
    using Raised = std::tuple<std::string, std::string, std::string>;

    template <class Function>
    void note(const Function& function) {
        try {
            static_cast<void>(function());
            ADD_FAILURE() << "no error was raised";
        } catch (const AutomationError& error) {
            raised.emplace(std::to_string(error.number()), error.source(), error.description());
        }
    }

    // A record that is its own parent.
    void note_cycle(const std::string& table, const std::string& operation) {
        const std::string key = new_key();
        RecordSet rs = app->oBase()->Sql_Find(table, "1=2", "");
        rs.add_new();
        rs.set("DSN", key);
        rs.set(table + "_DSN", key);
        app->oBase()->CV_UpdateRecordset(rs);
        try {
            call(operation, key);
            ADD_FAILURE() << "no error was raised";
        } catch (const AutomationError& error) {
            raised.emplace(std::to_string(error.number()), error.source(),
                           std::regex_replace(error.description(), std::regex("'[^']*'"), "'...'"));
        }
    }

    std::set<Raised> raised;
};

TEST_F(ErrorsPageOfTheLibrary, ListsItsOwnErrorsWithSourcesAndTexts) {
    note([] { return make_object<Application>()->AKT_New(); });
    note([&] { return call("FldArtOp_Create", "Gas", ""); });
    note_cycle("AKT", "AKT_GetRootAKTDsn");
    note_cycle("OBJ", "OBJ_GetRootOBJDsn");
    note_cycle("Projekte", "PROJEKTE_GetRootProjekteDsn");
    note_cycle("AD", "AD_GetRootAdDsn");
    note([&] { return app->oBase()->Sql_CrossTable("OBJ", "Kennung", " "); });
    note([&] { return app->oTools()->GetSinglePlatzhalter("NAME", {}, ""); });
    RecordingHost old;
    old.set_build(132);
    const auto attached = old.attached();
    note([&] { return attached->oTools()->GetSinglePlatzhalter("NAME", {}, ""); });

    std::set<Raised> listed;
    for (const Cells& row : table_under("The library's own")) {
        EXPECT_TRUE(listed.emplace(row[0], row[1], row[2]).second) << row[2];
    }
    EXPECT_EQ(listed, raised);
}

TEST(ErrorsPage, ListsTheMessagesOfAttaching) {
    const std::string frame = source_file("src/session/session_frame.cpp");
    std::size_t shown = 0;
    for (std::size_t at = frame.find("show_message("); at != std::string::npos;
         at = frame.find("show_message(", at + 1)) {
        ++shown;
    }
    const std::vector<Cells> rows = table_under("Messages");
    EXPECT_EQ(rows.size(), shown);
    for (const Cells& row : rows) {
        // What stands in quotes is put in between.
        EXPECT_NE(frame.find(row[0].substr(0, row[0].find("..."))), std::string::npos) << row[0];
    }
}

}  // namespace
}  // namespace cvdeveloper
