#include "host/session/logon_delay.h"

#include <algorithm>
#include <thread>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/error.h"

namespace cvdeveloper::standalone {

namespace {

using Seconds = std::chrono::duration<double>;

constexpr std::chrono::milliseconds first_delay{250};
constexpr std::chrono::milliseconds longest_delay{15'000};
// Guessing is over after such a pause.
constexpr std::chrono::minutes remembered{15};

double present() {
    return Seconds(std::chrono::system_clock::now().time_since_epoch()).count();
}

double seconds_after(int failures) {
    return Seconds(delay_after(failures)).count();
}

// Whoever waits can be interrupted.
void wait_until(double moment) {
    constexpr std::chrono::milliseconds pause{20};
    const BlockingScope waiting;
    for (double left = moment - present(); left > 0; left = moment - present()) {
        check_interrupt();
        std::this_thread::sleep_for(std::min<Seconds>(Seconds(left), pause));
    }
}

}  // namespace

std::chrono::milliseconds delay_after(int failures) noexcept {
    std::chrono::milliseconds delay = failures > 0 ? first_delay : first_delay * 0;
    for (int i = 1; i < failures && delay < longest_delay; ++i) {
        delay *= 2;
    }
    return std::min(delay, longest_delay);
}

LogonDelay::Row LogonDelay::read() {
    Rows found(2);
    const Value key = std::string_view(owner_);
    database_.prepare("SELECT failures, next_try FROM cv_logon WHERE Benutzer_DSN=?", Author::Host)
        ->query({&key, 1}, found);
    if (found.size() == 0) {
        return {};
    }
    // A clock that was put back must not make anybody wait for it.
    const double latest = present() + 2 * Seconds(longest_delay).count();
    const Row row{.failures = static_cast<int>(found[0][0].integer),
                  .next_try = std::min(found[0][1].number, latest)};
    const bool is_forgotten = row.next_try + Seconds(remembered).count() < present();
    return is_forgotten ? Row{} : row;
}

void LogonDelay::write(const Row& row) {
    const Value values[] = {std::string_view(owner_), std::int64_t{row.failures}, row.next_try};
    database_
        .prepare(
            "INSERT OR REPLACE INTO cv_logon (Benutzer_DSN, failures, next_try) VALUES (?, ?, ?)",
            Author::Host)
        ->execute(values);
}

double LogonDelay::take_turn() {
    database_.begin();
    try {
        Row row = read();
        const double turn = std::max(row.next_try, present());
        if (turn - present() <= Seconds(longest_delay).count()) {
            ++row.failures;
            row.next_try = turn + seconds_after(row.failures);
            write(row);
            failures_ = row.failures;
            is_counted_ = true;
        }
        database_.commit();
        return turn;
    } catch (...) {
        database_.rollback();
        throw;
    }
}

bool LogonDelay::wait_for_turn() {
    const Row row = read();
    failures_ = row.failures;
    if (row.failures == 0) {
        return true;
    }
    double turn = row.next_try;
    try {
        turn = take_turn();
    } catch (const AutomationError&) {
        // Somebody writes for long, or the disk is full: at least nobody tries in a hurry.
        wait_until(std::max(turn, present() + seconds_after(row.failures)));
        return true;
    }
    if (!is_counted_) {
        return false;
    }
    wait_until(turn);
    return true;
}

void LogonDelay::note_failure() {
    if (is_counted_) {
        return;
    }
    try {
        database_.begin();
        Row row = read();
        ++row.failures;
        row.next_try = std::max(row.next_try, present()) + seconds_after(row.failures);
        write(row);
        database_.commit();
        failures_ = row.failures;
    } catch (const AutomationError&) {
        // The refusal itself matters more than its count.
        database_.rollback();
        wait_until(present() + seconds_after(failures_ + 1));
    }
}

void LogonDelay::note_success() {
    if (failures_ == 0) {
        return;
    }
    try {
        const Value key = std::string_view(owner_);
        database_.prepare("DELETE FROM cv_logon WHERE Benutzer_DSN=?", Author::Host)
            ->execute({&key, 1});
    } catch (const AutomationError&) {
        return;  // the user may work; the next log-on waits a little
    }
}

}  // namespace cvdeveloper::standalone
