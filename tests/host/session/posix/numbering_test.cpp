#include <sys/wait.h>
#include <unistd.h>

#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

using NumberingByProcesses = HostTest;

TEST_F(NumberingByProcesses, NeverGivesANumberTwice) {
    constexpr int processes = 4;
    constexpr int records = 25;
    for (int i = 0; i < processes; ++i) {
        if (fork() == 0) {
            const Ref<Connector> child = log_on();
            for (int record = 0; record < records; ++record) {
                RecordSet rs = child->GetRecordset("SELECT * FROM AKT WHERE 1=2", {});
                rs.add_new();
                rs.set("DSN", std::to_string(i) + "-" + std::to_string(record));
                rs.set("Kennung",
                       child->GetRecordset("SELECT Kennung_AKT FROM Std", {}).value_at(0));
                child->UpdateRecordset(rs, {});
            }
            _exit(0);
        }
    }
    for (int i = 0; i < processes; ++i) {
        int status = -1;
        wait(&status);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(single("SELECT count(*) FROM AKT"), Variant(processes * records));
    EXPECT_EQ(single("SELECT count(DISTINCT Kennung) FROM AKT"), Variant(processes * records));
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
