#include "host/services/progress.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <unistd.h>

#include <array>
#include <string>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/conversions.h"
#include "host/host_test.h"
#include "host/register.h"

namespace cvdeveloper::standalone::testing {
namespace {

// A terminal of the test's own, so many columns wide.
class Terminal {
  public:
    explicit Terminal(unsigned short columns) {
        winsize size{};
        size.ws_col = columns;
        size.ws_row = 25;
        EXPECT_EQ(openpty(&reading_, &writing_, nullptr, nullptr, &size), 0);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;
    ~Terminal() {
        close(reading_);
        close(writing_);
    }

    [[nodiscard]] int end() const noexcept { return writing_; }
    // What has come since the last call.
    std::string output() {
        std::string text;
        pollfd ready{.fd = reading_, .events = POLLIN, .revents = 0};
        while (poll(&ready, 1, 50) > 0) {
            std::array<char, 4096> buffer{};
            const ssize_t count = read(reading_, buffer.data(), buffer.size());
            text.append(buffer.data(), static_cast<std::size_t>(count));
        }
        return text;
    }

  private:
    int reading_ = -1;
    int writing_ = -1;
};

constexpr char wipe[] = "\r\x1b[K";

std::string bar(int filled, int length, const std::string& percent) {
    return "[" + std::string(static_cast<std::size_t>(filled), '#') +
           std::string(static_cast<std::size_t>(length - filled), ' ') + "] " + percent + " %";
}

class ProgressTest : public ::testing::Test {
  protected:
    Terminal terminal{90};
    Ref<Progress> progress = make_object<Progress>(terminal.end());
};

TEST_F(ProgressTest, NothingIsDrawnBeforeShow) {
    progress->put("Titel", "Versand");
    progress->put("Value", 50.0);
    EXPECT_EQ(terminal.output(), "");
    progress->call("Show");
    EXPECT_EQ(terminal.output(), wipe + std::string("Versand ") + bar(15, 30, " 50"));
}

TEST_F(ProgressTest, EachChangeIsDrawnOnceInPlaceOfTheLast) {
    progress->call("Show");
    progress->put("Min", 10.0);
    progress->put("Max", 20.0);
    terminal.output();
    progress->put("Value", 20.0);
    EXPECT_EQ(terminal.output(), wipe + bar(30, 30, "100"));
    progress->put("Value", 20.0);
    EXPECT_EQ(terminal.output(), "");
    progress->put("Title", "Exposés");
    progress->put("Text", "Lindenweg 12");
    EXPECT_TRUE(terminal.output().ends_with("Exposés: Lindenweg 12 " + bar(30, 30, "100")));
}

TEST_F(ProgressTest, ValuesOutsideShowAsEmptyOrFull) {
    progress->call("Show");
    EXPECT_TRUE(terminal.output().ends_with(bar(0, 30, "  0")));
    progress->put("Value", 1000.0);
    EXPECT_TRUE(terminal.output().ends_with(bar(30, 30, "100")));
    progress->put("Value", -5.0);
    EXPECT_TRUE(terminal.output().ends_with(bar(0, 30, "  0")));
    progress->put("Max", 0.0);
    progress->put("Value", 7.0);
    EXPECT_EQ(terminal.output(), "");
    EXPECT_EQ(progress->get("Value"), Variant(7.0));
}

TEST_F(ProgressTest, HideTakesTheLineAway) {
    progress->call("Show");
    terminal.output();
    progress->call("Hide");
    EXPECT_EQ(terminal.output(), wipe);
    progress->put("Value", 30.0);
    progress->call("Hide");
    EXPECT_EQ(terminal.output(), "");
}

TEST_F(ProgressTest, LastOwnerTakesTheLineAway) {
    progress->call("Show");
    terminal.output();
    progress = nullptr;
    EXPECT_EQ(terminal.output(), wipe);
}

TEST_F(ProgressTest, TextNeverLeavesItsLine) {
    Terminal narrow(40);
    const auto other = make_object<Progress>(narrow.end());
    other->put("Text", "eins\r\nzwei\x1b[2J " + std::string(200, 'x'));
    other->call("Show");
    const std::string line = narrow.output().substr(std::string(wipe).size());
    EXPECT_LT(line.size(), 40U);
    EXPECT_TRUE(line.starts_with("eins  zwei [2J")) << line;
}

TEST_F(ProgressTest, CancelledStaysFalseUntilItIsSet) {
    EXPECT_EQ(progress->get("Cancelled"), Variant(false));
    progress->put("Cancelled", true);
    EXPECT_EQ(progress->get("cancelled"), Variant(true));
}

TEST(Progress, NothingIsWrittenWhereThereIsNoTerminal) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_NONBLOCK), 0);
    {
        const auto progress = make_object<Progress>(ends[1]);
        progress->call("Show");
        progress->put("Value", 50.0);
        progress->call("Hide");
    }
    char nothing = 0;
    EXPECT_EQ(read(ends[0], &nothing, 1), -1);
    close(ends[0]);
    close(ends[1]);
}

class ConnectorProgress : public HostTest {};

TEST_F(ConnectorProgress, IsAlwaysTheSame) {
    const ObjectRef progress = to_object(connector->get("Progress"));
    ASSERT_TRUE(progress);
    progress->put("Text", "halb");
    EXPECT_EQ(to_object(connector->get("Progress")), progress);
    EXPECT_EQ(progress->class_name(), "clqexstdc10.cProgress");
}

TEST(Progress, IsAStandardComponent) {
    register_standalone_host();
    EXPECT_EQ(create_object("clqexstdc10.cProgress")->get("Max"), Variant(100.0));
    clear_registry();
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
