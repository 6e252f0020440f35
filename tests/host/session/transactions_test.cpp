#include <sys/wait.h>
#include <unistd.h>

#include "host/errors.h"
#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

class Units : public HostTest {
  protected:
    host::UnitOfWork& unit() { return *connector->unit_of_work(); }
    // What another session sees.
    std::int32_t seen_by_others() {
        return other->GetRecordset("SELECT count(*) FROM AKT", {}).value_at(0).get<std::int32_t>();
    }
    Ref<Connector> other = log_on();
};

TEST_F(Units, CommitOnceAtTheirOutermostEnd) {
    unit().enter();
    unit().enter();
    add_activity("a");
    unit().leave();
    add_activity("b");
    EXPECT_EQ(single("SELECT count(*) FROM AKT"), Variant(2));
    EXPECT_EQ(seen_by_others(), 0);
    unit().leave();
    EXPECT_EQ(seen_by_others(), 2);
}

TEST_F(Units, KeepWhatWasWrittenBeforeAnError) {
    unit().enter();
    add_activity("a");
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    for (const char* key : {"A", "A"}) {
        rs.add_new();
        rs.set("DSN", key);
    }
    EXPECT_THROW(save(rs), AutomationError);
    unit().leave();
    EXPECT_EQ(seen_by_others(), 1);
}

TEST_F(Units, TakeBackTheNewRowsOfAFailedSaveAndNoOthers) {
    RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    rs.add_new();
    rs.set("DSN", "C");
    rs.set("Subject", "war schon da");
    save(rs);
    unit().enter();
    rs = select("SELECT * FROM AKT WHERE 1=2");
    for (const char* key : {"A", "B", "C", "D"}) {
        rs.add_new();
        rs.set("DSN", key);
    }
    EXPECT_EQ(error_of([&] { save(rs); }).number(),
              static_cast<std::int32_t>(HostError::ValueRefused));
    EXPECT_EQ(single("SELECT count(*) FROM AKT"), Variant(1));
    EXPECT_EQ(single("SELECT Subject FROM AKT"), Variant("war schon da"));
    // The record set keeps its rows: with another key they can be saved.
    rs.move_first();
    rs.move_next();
    rs.move_next();
    rs.set("DSN", "E");
    save(rs);
    unit().leave();
    EXPECT_EQ(seen_by_others(), 5);
}

TEST_F(Units, HoldNoLockBeforeTheirFirstWrite) {
    unit().enter();
    (void)single("SELECT count(*) FROM AKT");
    RecordSet rs = other->GetRecordset("SELECT * FROM AKT WHERE 1=2", {});
    rs.add_new();
    rs.set("DSN", "A");
    other->UpdateRecordset(rs, {});
    unit().leave();
    EXPECT_EQ(seen_by_others(), 1);
}

TEST_F(Units, DoNothingInsideACallersTransaction) {
    connector->BeginTrans();
    unit().enter();
    add_activity("a");
    unit().leave();
    EXPECT_EQ(seen_by_others(), 0);
    connector->RollbackTrans();
    EXPECT_EQ(single("SELECT count(*) FROM AKT"), Variant(0));
}

using ATransaction = Units;

TEST_F(ATransaction, LastsOnceItIsCommitted) {
    connector->BeginTrans();
    add_activity("a");
    EXPECT_EQ(single("SELECT count(*) FROM AKT"), Variant(1));
    EXPECT_EQ(seen_by_others(), 0);
    connector->CommitTrans();
    EXPECT_EQ(seen_by_others(), 1);
}

TEST_F(ATransaction, IsNotBegunTwiceAndNotEndedUnbegun) {
    EXPECT_THROW(connector->CommitTrans(), AutomationError);
    EXPECT_THROW(connector->RollbackTrans(), AutomationError);
    connector->BeginTrans();
    EXPECT_EQ(error_of([&] { connector->BeginTrans(); }).number(),
              static_cast<std::int32_t>(HostError::Transaction));
    connector->RollbackTrans();
    connector->BeginTrans();
    connector->CommitTrans();
}

TEST_F(ATransaction, TakesTenThousandRecordsWithTheirNumbers) {
    constexpr int records = 10'000;
    connector->BeginTrans();
    for (int i = 0; i < records; ++i) {
        unit().enter();
        RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
        rs.add_new();
        rs.set("DSN", std::to_string(i));
        rs.set("Kennung", select("SELECT Kennung_AKT FROM Std").value_at(0));
        save(rs);
        unit().leave();
    }
    EXPECT_EQ(single("SELECT count(DISTINCT Kennung) FROM AKT"), Variant(records));
    EXPECT_EQ(seen_by_others(), 0);
    connector->CommitTrans();
    EXPECT_EQ(seen_by_others(), records);
}

TEST_F(ATransaction, GoesWithItsSession) {
    connector->BeginTrans();
    add_activity("a");
    connector = nullptr;
    EXPECT_EQ(seen_by_others(), 0);
    RecordSet rs = other->GetRecordset("SELECT * FROM AKT WHERE 1=2", {});
    rs.add_new();
    rs.set("DSN", "A");
    other->UpdateRecordset(rs, {});
}

class Numbering : public Units {
  protected:
    std::string take(const Ref<Connector>& from) {
        return from->GetRecordset("SELECT Kennung_AKT FROM Std", {})
            .value("kennung_akt")
            .get<std::string>();
    }
};

TEST_F(Numbering, GivesEveryReaderOfACounterTheNextNumber) {
    EXPECT_EQ(take(connector), "K-100001  ");
    EXPECT_EQ(take(other), "K-100002  ");
    EXPECT_EQ(take(connector), "K-100003  ");
}

TEST_F(Numbering, ShowsTheLastNumberToWhoeverReadsTheWholeRow) {
    EXPECT_EQ(take(connector), "K-100001  ");
    EXPECT_EQ(connector->STDRS().value("Kennung_AKT"), Variant("K-100001  "));
    EXPECT_EQ(select("SELECT * FROM Std").value("Kennung_AKT"), Variant("K-100001  "));
    EXPECT_EQ(take(connector), "K-100002  ");
}

TEST_F(Numbering, BelongsToTheTransactionItIsTakenIn) {
    connector->BeginTrans();
    EXPECT_EQ(take(connector), "K-100001  ");
    connector->RollbackTrans();
    EXPECT_EQ(take(connector), "K-100001  ");
}

TEST_F(Numbering, IsUniqueAcrossProcesses) {
    constexpr int processes = 4;
    constexpr int records = 25;
    for (int i = 0; i < processes; ++i) {
        if (fork() == 0) {
            const Ref<Connector> child = log_on();
            for (int record = 0; record < records; ++record) {
                RecordSet rs = child->GetRecordset("SELECT * FROM AKT WHERE 1=2", {});
                rs.add_new();
                rs.set("DSN", std::to_string(i) + "-" + std::to_string(record));
                rs.set("Kennung", take(child));
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

TEST_F(Numbering, HandlesTheCounterOfContractsInEverySpelling) {
    EXPECT_EQ(select("SELECT KENNUNG_VERTRAEGE FROM Std").value("Kennung_Vertraege"),
              Variant("V-100001  "));
    EXPECT_EQ(select("SELECT Kennung_verträge FROM std").value_at(0), Variant("V-100002  "));
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
