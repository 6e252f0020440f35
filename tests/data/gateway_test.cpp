#include "cvdeveloper/data/gateway.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/log_file.h"
#include "support/recording_host.h"

namespace cvdeveloper {
namespace {

constexpr char not_initialised[] = "CVDeveloper wurde nicht initialisiert";
const AutomationError host_error(-2147217900, "Host", "Syntaxfehler");

class GatewayTest : public testing::Test {
  protected:
    RecordingHost host;
    Ref<Application> app = host.attached();
    LogFile log_file{*app};
};

TEST_F(GatewayTest, SendsStatementsAsTheyAreAndGivesTheHostsRecordSetBack) {
    host.answer("SELECT 1 AS A", row({{"A", std::int32_t{1}}}));
    const RecordSet rs = app->oBase()->CV_GetRecordset("SELECT 1 AS A");
    EXPECT_EQ(rs.value("a"), Variant(std::int32_t{1}));
    EXPECT_EQ(host.log(), Lines{"SELECT 1 AS A"});
    EXPECT_EQ(log_file.lines(), Lines{});
}

TEST_F(GatewayTest, LogsEveryEmptyResult) {
    app->oBase()->CV_GetRecordset("SELECT * FROM AKT WHERE 1=2");
    EXPECT_EQ(log_file.lines(), Lines{"EOF=true in  : SQL: SELECT * FROM AKT WHERE 1=2"});
}

TEST_F(GatewayTest, LogsEveryStatementWhenAskedTo) {
    host.answer("SELECT 1", row({{"A", std::int32_t{1}}}));
    app->put_FlagSqlLog(true);
    app->oBase()->CV_GetRecordset("SELECT 1");
    EXPECT_EQ(log_file.lines(), Lines{"GetRecordset : SELECT 1"});
}

TEST_F(GatewayTest, HostErrorsReachTheCallerUnchanged) {
    host.refuse("SELECT x", host_error);
    expect_error(-2147217900, "Host", "Syntaxfehler",
                 [&] { app->oBase()->CV_GetRecordset("SELECT x"); });
    EXPECT_EQ(log_file.lines(), Lines{});
}

TEST_F(GatewayTest, HostErrorsAreLoggedAndSwallowedWhileStatementsAreLogged) {
    host.refuse("SELECT x", host_error);
    app->put_FlagSqlLog(true);
    EXPECT_FALSE(app->oBase()->CV_GetRecordset("SELECT x"));
    EXPECT_EQ(log_file.lines(), (Lines{"GetRecordset : SELECT x",
                                       "ERROR GetRecordset : Syntaxfehler| SQL: SELECT x"}));
}

TEST_F(GatewayTest, WritesBackThroughTheHost) {
    RecordSet rs = host.record_set(row({{"DSN", "K1"}}));
    app->oBase()->CV_UpdateRecordset(rs);
    EXPECT_EQ(host.log(), Lines{"Update"});
}

TEST_F(GatewayTest, LogsTheRowThatIsWritten) {
    RecordSet rs = host.record_set(
        row({{"DSN", std::int32_t{5}}, {"NAME", "A\r\nB"}, {"NOTIZ", Null{}}, {"LEER", "  "}}));
    app->put_FlagSqlLog(true);
    app->oBase()->CV_UpdateRecordset(rs);
    EXPECT_EQ(log_file.content(),
              "UpdateRecordset : \r\n                      DSN = 5"
              "\r\n                      NAME = A B\r\n");
}

TEST_F(GatewayTest, FailedWritingIsLoggedWithTheRowUnderItsOldName) {
    RecordSet rs = host.record_set(row({{"DSN", "K1"}}));
    host.refuse_update(host_error);
    app->put_FlagSqlLog(true);
    app->oBase()->CV_UpdateRecordset(rs);
    EXPECT_EQ(log_file.content(),
              "UpdateRecordset : \r\n                      DSN = K1\r\n"
              "ERROR GetRecordset : Syntaxfehler | RS: \r\n                      DSN = K1\r\n");
}

TEST_F(GatewayTest, NothingIsDumpedAsIsNothing) {
    EXPECT_EQ(dump_row(RecordSet()), "Is Nothing");
}

TEST_F(GatewayTest, PasswordGoesAlongUntilItIsDropped) {
    const auto base = app->oBase();
    RecordSet rs = host.record_set(row({{"DSN", "K1"}}));
    base->SetDBPassword("");
    base->CV_GetRecordset("SELECT 1");
    base->CV_UpdateRecordset(rs);
    base->ResetDBPassword();
    base->CV_GetRecordset("SELECT 1");
    EXPECT_EQ(host.log(), (Lines{"SELECT 1 []", "Update []", "SELECT 1"}));
}

TEST_F(GatewayTest, UserAndMasterDataAreTheHostsProperties) {
    host.set_user({{"Login_Name", "maria"}});
    EXPECT_EQ(app->oBase()->CV_CurrentUserRS().value("LOGIN_NAME"), Variant("maria"));
    EXPECT_EQ(app->Corvanta_STDRS().value("DSN"), Variant("STD"));
    EXPECT_EQ(host.log(), (Lines{"CurrentUserRS", "STDRS"}));
}

TEST_F(GatewayTest, EverythingIsRefusedWithoutASession) {
    app->Corvanta_Done();
    const auto base = app->oBase();
    RecordSet rs;
    expect_error(601, "", not_initialised, [&] { base->CV_GetRecordset("SELECT 1"); });
    expect_error(601, "", not_initialised, [&] { base->CV_UpdateRecordset(rs); });
    expect_error(601, "", not_initialised, [&] { return base->CV_CurrentUserRS(); });
    expect_error(601, "", not_initialised, [&] { return base->CV_STDRS(); });
    base->SetDBPassword("x");
    base->ResetDBPassword();
}

TEST_F(GatewayTest, MissingSessionIsRaisedAlsoWhileStatementsAreLogged) {
    app->Corvanta_Done();
    app->put_FlagSqlLog(true);
    expect_error(601, "", not_initialised, [&] { app->oBase()->CV_GetRecordset("SELECT 1"); });
    EXPECT_EQ(log_file.lines(), Lines{"GetRecordset : SELECT 1"});
}

}  // namespace
}  // namespace cvdeveloper
