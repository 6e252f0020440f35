#include "host/session/connector.h"

#include <fstream>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/conversions.h"
#include "host/errors.h"
#include "host/folder/host_folder.h"
#include "host/host_test.h"
#include "host/register.h"
#include "host/session/users.h"

namespace cvdeveloper::standalone::testing {
namespace {

std::int32_t number(HostError error) {
    return static_cast<std::int32_t>(error);
}

using TheConnector = HostTest;

TEST_F(TheConnector, RefusesEveryWrongLogonInTheSameWords) {
    const auto database = HostFolder::open(host_path()).open_database();
    Users(*database).add("inaktiv", "geheim", false);
    database->run_script("UPDATE Benutzer SET AKTIV=0 WHERE Login_Name='inaktiv'");
    const auto refusal = [this](std::string_view user, std::string_view password) {
        const AutomationError error =
            error_of([&] { Connector().Logon(host_path(), user, password); });
        EXPECT_EQ(error.number(), number(HostError::LogonFailed));
        std::string text = error.description();
        text.replace(text.find(user), user.size(), "X");
        return text;
    };
    const std::string wrong_password = refusal("chef", "FALSCH");
    EXPECT_EQ(refusal("niemand", ""), wrong_password);
    EXPECT_EQ(refusal("inaktiv", "FALSCH"), wrong_password);
    EXPECT_EQ(
        refusal("inaktiv", "GEHEIM"),
        "Die Anmeldung von 'X' ist fehlgeschlagen: der Benutzer ist nicht aktiv und darf sich "
        "nicht anmelden.");
}

TEST_F(TheConnector, TakesPasswordsInAnyCase) {
    const std::string path = folder.path("zwei");
    create_folder(path, {.user = "Anna", .password = "geHeim ß"});
    Connector anna;
    anna.Logon(path, "ANNA", "GEHEIM ß");
    EXPECT_EQ(anna.CurrentUserRS().value("Login_Name"), Variant("Anna"));
    EXPECT_EQ(anna.CurrentUserRS().value("AKTIV"), Variant(std::int16_t{1}));
    EXPECT_EQ(anna.CurrentUserRS().value("Chef"), Variant(std::int16_t{1}));
    EXPECT_THROW(anna.Logon(path, "anna", "geheim"), AutomationError);
    EXPECT_FALSE(anna.CurrentUserRS().at_end());
}

TEST_F(TheConnector, NeedsALogonFirst) {
    Connector fresh;
    EXPECT_EQ(error_of([&] { fresh.GetRecordset("SELECT 1", {}); }).number(),
              number(HostError::Closed));
    EXPECT_EQ(error_of([&] { fresh.CurrentUserRS(); }).number(), number(HostError::Closed));
    EXPECT_EQ(error_of([&] { fresh.Util(); }).number(), number(HostError::Closed));
}

TEST_F(TheConnector, IsMadeAndUsedByName) {
    register_standalone_host();
    const ObjectRef object = create_object("cvconnector.application");
    object->call("Logon", host_path(), "chef", "");
    const ObjectRef rs =
        to_object(object->call("GetRecordset", "SELECT * FROM AKT WHERE 1=2", "x"));
    EXPECT_EQ(rs->get("EOF"), Variant(true));
    const ObjectRef ini = to_object(object->get("DbIni"));
    EXPECT_EQ(ini->call("GetValue", "Brief", "Vorlage", "keine"), Variant("keine"));
    ini->call("SetValue", "Brief", "Vorlage", "lang");
    EXPECT_EQ(ini->call("GetValue", "brief", "VORLAGE"), Variant("lang"));
    EXPECT_EQ(to_object(object->get("CurrentUserRS"))->get("RecordCount"), Variant(1));
    EXPECT_EQ(to_object(object->get("STDRS"))->get("RecordCount"), Variant(1));
}

TEST_F(TheConnector, GivesEachReadARecordSetOfItsOwn) {
    const RecordSet one = connector->CurrentUserRS();
    const RecordSet other = connector->CurrentUserRS();
    one.set("Kurz", "ZZ");
    EXPECT_NE(other.value("Kurz"), Variant("ZZ"));
}

TEST_F(TheConnector, WaitsForAnotherWriterAndThenSaysSo) {
    std::ofstream(host_path() + "/corvanta.ini") << "[Datenbank]\nWartezeit=0\n";
    const Ref<Connector> other = log_on();
    connector->BeginTrans();
    RecordSet rs = other->GetRecordset("SELECT * FROM AKT WHERE 1=2", {});
    rs.add_new();
    rs.set("DSN", "A");
    EXPECT_EQ(error_of([&] { other->UpdateRecordset(rs, {}); }).number(),
              number(HostError::LockTimeout));
    connector->RollbackTrans();
    other->UpdateRecordset(rs, {});
    EXPECT_EQ(single("SELECT count(*) FROM AKT"), Variant(1));
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
