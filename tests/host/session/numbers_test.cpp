#include <algorithm>
#include <fstream>
#include <set>
#include <thread>
#include <vector>

#include "cvdeveloper/automation/conversions.h"
#include "host/folder/host_folder.h"
#include "host/host_test.h"
#include "host/keys.h"

namespace cvdeveloper::standalone::testing {
namespace {

class NumbersGivenOut : public HostTest {
  protected:
    static std::string take(Connector& by) {
        return to_text(by.GetRecordset("SELECT Kennung_AKT FROM Std", {}).value_at(0));
    }
    static void create(Connector& by, const std::string& number) {
        RecordSet rs = by.GetRecordset("SELECT * FROM AKT WHERE 1=2", {});
        rs.add_new();
        rs.set("DSN", new_key());
        rs.set("Kennung", number);
        by.UpdateRecordset(rs, {});
    }

    // What several users take at the same time, each with a connection of his own.
    template <class Work>
    std::vector<std::string> at_once(int users, const Work& work) {
        std::vector<std::vector<std::string>> taken(static_cast<std::size_t>(users));
        std::vector<std::thread> threads;
        for (std::vector<std::string>& own : taken) {
            threads.emplace_back([this, &own, &work, by = log_on()] { work(*by, own); });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        std::vector<std::string> all;
        for (const std::vector<std::string>& own : taken) {
            EXPECT_TRUE(std::ranges::is_sorted(own));
            all.insert(all.end(), own.begin(), own.end());
        }
        return all;
    }
    static std::size_t distinct(const std::vector<std::string>& numbers) {
        return std::set<std::string>(numbers.begin(), numbers.end()).size();
    }
};

TEST_F(NumbersGivenOut, FollowOneAnother) {
    EXPECT_EQ(take(*connector), "K-100001  ");
    EXPECT_EQ(take(*connector), "K-100002  ");
    EXPECT_EQ(select("SELECT * FROM Std").value("Kennung_AKT"), Variant("K-100002  "));
}

TEST_F(NumbersGivenOut, AreHandedOutOnceEachToUsersWhoTakeThemAtTheSameTime) {
    constexpr int each = 50;
    const auto numbers = at_once(4, [](Connector& by, std::vector<std::string>& own) {
        for (int i = 0; i < each; ++i) {
            own.push_back(take(by));
        }
    });
    EXPECT_EQ(numbers.size(), 4U * each);
    EXPECT_EQ(distinct(numbers), numbers.size());
    EXPECT_EQ(*std::ranges::max_element(numbers), "K-100200  ");
}

TEST_F(NumbersGivenOut, AreHandedOutOnceEachInsideUnitsOfWork) {
    constexpr int each = 20;
    const auto numbers = at_once(3, [](Connector& by, std::vector<std::string>& own) {
        for (int i = 0; i < each; ++i) {
            by.unit_of_work()->enter();
            own.push_back(take(by));
            create(by, own.back());
            by.unit_of_work()->leave();
        }
    });
    EXPECT_EQ(distinct(numbers), 3U * each);
    std::set<std::string> stored;
    for (const RecordSet rs = select("SELECT Kennung FROM AKT"); !rs.at_end(); rs.move_next()) {
        stored.insert(to_text(rs.value_at(0)));
    }
    EXPECT_EQ(stored, std::set<std::string>(numbers.begin(), numbers.end()));
}

TEST_F(NumbersGivenOut, HaveTheFormThatTheSettingsSay) {
    std::ofstream(paths::to_system(host_path() + "/corvanta.ini")) << "[Kennungen]\nStellen=7\n";
    const auto set_prefix = [this](const std::string& prefix, int last) {
        HostFolder::open(host_path())
            .open_database()
            ->run_script("UPDATE cv_counter SET prefix='" + prefix +
                         "', last_number=" + std::to_string(last) + " WHERE name='Kennung_AKT'");
    };
    connector = log_on();
    set_prefix("A-", 41);
    EXPECT_EQ(take(*connector), "A-0000042 ");
    set_prefix("", 12'345'678);
    EXPECT_EQ(take(*connector), "12345679  ");
    set_prefix("LANG-", 9'999'999);
    EXPECT_EQ(take(*connector), "LANG-10000000") << "a wide number is not cut";
}

TEST_F(NumbersGivenOut, OfATransactionThatIsRolledBackAreFreeAgain) {
    connector->BeginTrans();
    EXPECT_EQ(take(*connector), "K-100001  ");
    connector->RollbackTrans();
    EXPECT_EQ(take(*connector), "K-100001  ");
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
