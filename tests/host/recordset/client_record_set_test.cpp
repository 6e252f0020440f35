#include "host/recordset/client_record_set.h"

#include "cvdeveloper/automation/conversions.h"
#include "host/errors.h"
#include "host/host_test.h"

namespace cvdeveloper::standalone::testing {
namespace {

std::int32_t number(HostError error) {
    return static_cast<std::int32_t>(error);
}

class ARecordSet : public HostTest {
  protected:
    ARecordSet() {
        for (const char* subject : {"a", "b", "c"}) {
            add_activity(subject);
        }
    }
    RecordSet all() { return select("SELECT * FROM AKT ORDER BY Subject"); }
    static Object& object(const RecordSet& rs) { return *rs.object(); }
    std::string description(const std::function<void()>& action) {
        return error_of(action).description();
    }
};

TEST_F(ARecordSet, MovesAsScriptWritersExpect) {
    const RecordSet rs = all();
    Object& script = object(rs);
    EXPECT_EQ(script.get("RecordCount"), Variant(3));
    EXPECT_EQ(script.get("BOF"), Variant(false));
    script.call("MoveLast");
    EXPECT_EQ(rs.value("Subject"), Variant("c"));
    script.call("MovePrevious");
    EXPECT_EQ(rs.value("Subject"), Variant("b"));
    script.call("MovePrevious");
    script.call("MovePrevious");
    EXPECT_EQ(script.get("BOF"), Variant(true));
    EXPECT_EQ(error_of([&] { script.call("MovePrevious"); }).number(),
              number(HostError::NoCurrentRow));
    rs.move_next();
    EXPECT_EQ(rs.value("Subject"), Variant("a"));
    rs.move_first();
    rs.move_next();
    rs.move_next();
    rs.move_next();
    EXPECT_TRUE(rs.at_end());
    EXPECT_EQ(error_of([&] { rs.move_next(); }).number(), number(HostError::NoCurrentRow));
}

TEST_F(ARecordSet, IsBothAtItsBeginAndEndWhenEmpty) {
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    EXPECT_EQ(object(rs).get("BOF"), Variant(true));
    EXPECT_EQ(object(rs).get("EOF"), Variant(true));
    EXPECT_EQ(object(rs).get("RecordCount"), Variant(0));
    EXPECT_EQ(error_of([&] { (void)rs.value("Subject"); }).number(),
              number(HostError::NoCurrentRow));
    EXPECT_THROW(rs.remove(), AutomationError);
    EXPECT_THROW(rs.set("Subject", "x"), AutomationError);
}

TEST_F(ARecordSet, KeepsADeletedRowCurrentUntilItIsMoved) {
    const RecordSet rs = all();
    rs.move_next();
    rs.remove();
    EXPECT_FALSE(rs.at_end());
    EXPECT_EQ(rs.value("Subject"), Variant("b"));
    EXPECT_EQ(error_of([&] { rs.set("Subject", "x"); }).number(), number(HostError::NoCurrentRow));
    rs.remove();
    rs.move_next();
    EXPECT_EQ(rs.value("Subject"), Variant("c"));
    object(rs).call("MovePrevious");
    EXPECT_EQ(rs.value("Subject"), Variant("a"));
    EXPECT_EQ(object(rs).get("RecordCount"), Variant(2));
}

TEST_F(ARecordSet, GoesToItsNewRow) {
    const RecordSet rs = all();
    rs.add_new();
    EXPECT_EQ(rs.value("Subject"), Variant(Null{}));
    EXPECT_EQ(rs.value("Erledigt"), Variant(std::int16_t{0}));
    rs.set("Subject", "d");
    rs.move_first();
    EXPECT_EQ(rs.value("Subject"), Variant("a"));
    EXPECT_EQ(object(rs).get("RecordCount"), Variant(4));
}

TEST_F(ARecordSet, FindsFieldsByNameInAnyCaseAndByPosition) {
    const RecordSet rs = select("SELECT Dsn, Priorität, Subject AS Betreff FROM AKT");
    EXPECT_EQ(rs.field_count(), 3);
    EXPECT_EQ(rs.field_name(0), "DSN");
    EXPECT_EQ(rs.field_name(2), "Betreff");
    EXPECT_EQ(rs.value("PRIORITÄT"), rs.value_at(1));
    EXPECT_EQ(rs.value("prioritaet"), rs.value_at(1));
    EXPECT_EQ(rs.value("betreff"), rs.value_at(2));
    const AutomationError error = error_of([&] { (void)rs.value("Betref"); });
    EXPECT_EQ(error.number(), number(HostError::UnknownField));
    EXPECT_EQ(error.description(), "Feld 'Betref' gibt es in AKT nicht. Meinten Sie Betreff?");
    EXPECT_EQ(error_of([&] { (void)rs.value_at(3); }).number(), number(HostError::UnknownField));
    EXPECT_EQ(error_of([&] { (void)rs.value_at(-1); }).number(), number(HostError::UnknownField));
}

TEST_F(ARecordSet, FindsAnExpressionByItsText) {
    EXPECT_EQ(select("SELECT COUNT(*) FROM AKT").value("count(*)"), Variant(3));
    EXPECT_EQ(select("SELECT Dsn, 1+1 FROM AKT").value("1+1"), Variant(2));
}

TEST_F(ARecordSet, GivesFieldsAsScriptWritersUseThem) {
    const RecordSet rs = all();
    const ObjectRef fields = to_object(object(rs).get("Fields"));
    EXPECT_EQ(fields->get("Count"), Variant(rs.field_count()));
    const ObjectRef field = to_object(fields->call("Item", "Subject"));
    EXPECT_EQ(field->get("Name"), Variant("Subject"));
    EXPECT_EQ(field->get("Value"), Variant("a"));
    EXPECT_EQ(field->get("Type"), Variant(200));
    EXPECT_EQ(field->get("DefinedSize"), Variant(256));
    EXPECT_EQ(field->get("ActualSize"), Variant(1));
    field->put("Value", "neu");
    EXPECT_EQ(rs.value("Subject"), Variant("neu"));
    EXPECT_EQ(to_object(object(rs).call("Item", "Subject"))->get("Value"), Variant("neu"));
    EXPECT_EQ(to_object(object(rs).call("Fields", "Subject"))->get("Value"), Variant("neu"));
    rs.move_next();
    EXPECT_EQ(field->get("Value"), Variant("b"));
}

TEST_F(ARecordSet, TellsTheTypesOfItsFields) {
    const RecordSet rs = select("SELECT Notiz, Erledigt, Abteilung, Km, Datum, 1.5, 'x' FROM AKT");
    const std::int32_t expected[] = {201, 2, 3, 5, 7, 5, 200};
    for (std::int32_t i = 0; i < rs.field_count(); ++i) {
        EXPECT_EQ(to_object(object(rs).call("Item", i))->get("Type"), Variant(expected[i])) << i;
    }
}

TEST_F(ARecordSet, HandsOutLongTextsInPieces) {
    const RecordSet rs = all();
    rs.set("Notiz", "äöüß😀x");
    const ObjectRef field = to_object(object(rs).call("Item", "Notiz"));
    EXPECT_EQ(field->call("GetChunk", 3), Variant("äöü"));
    EXPECT_EQ(field->call("GetChunk", 2), Variant("ß"));
    EXPECT_EQ(field->call("GetChunk", 1), Variant("😀"));
    EXPECT_EQ(field->call("GetChunk", 9), Variant("x"));
    EXPECT_EQ(field->call("GetChunk", 9), Variant(Null{}));
    EXPECT_EQ(field->call("GetChunk", 2), Variant("äö"));
}

TEST_F(ARecordSet, RefusesValuesThatDoNotFitAndKeepsTheOldOnes) {
    const RecordSet rs = all();
    const AutomationError error = error_of([&] { rs.set("Subject", std::string(257, 'x')); });
    EXPECT_EQ(error.number(), number(HostError::ValueRefused));
    EXPECT_EQ(error.description(),
              "AKT.Subject nimmt höchstens 256 Zeichen auf; der Text hat 257.");
    EXPECT_NE(description([&] { rs.set("Erledigt", "ja"); }).find("AKT.Erledigt"),
              std::string::npos);
    EXPECT_NE(description([&] { rs.set("Erledigt", 70000); }).find("16 Bit"), std::string::npos);
    EXPECT_NE(description([&] { rs.set("Km", "weit"); }).find("'weit'"), std::string::npos);
    EXPECT_NE(description([&] { rs.set("Datum", "bald"); }).find("Datum"), std::string::npos);
    EXPECT_NE(description([&] { rs.set("DSN", Null{}); }).find("AKT.DSN"), std::string::npos);
    EXPECT_EQ(rs.value("Subject"), Variant("a"));
    rs.set("Subject", std::string(256, 'x'));
}

TEST_F(ARecordSet, CountsCharactersNotBytes) {
    const RecordSet rs = all();
    std::string text;
    for (int i = 0; i < 256; ++i) {
        text += "ä";
    }
    rs.set("Subject", text);
    EXPECT_EQ(rs.value("Subject"), Variant(text));
}

TEST_F(ARecordSet, ConvertsWhatItCan) {
    const RecordSet rs = all();
    rs.set("Km", "12,5");
    rs.set("Erledigt", 1.0);
    rs.set("Subject", 17);
    rs.set("Datum", "2026-03-01 14:30:00");
    rs.set("Vorlage", "01.03.2026");
    rs.set("Notiz", Empty{});
    save(rs);
    const RecordSet read = select("SELECT * FROM AKT WHERE Subject='17'");
    EXPECT_EQ(read.value("Km"), Variant(12.5));
    EXPECT_EQ(read.value("Erledigt"), Variant(std::int16_t{1}));
    EXPECT_EQ(read.value("Vorlage"), Variant(Date{46082}));
    EXPECT_EQ(read.value("Datum"), Variant(Date{46082 + 14.5 / 24}));
    EXPECT_EQ(read.value("Notiz"), Variant(Null{}));
}

TEST_F(ARecordSet, TakesAnothersFieldsAsIfTheyWereSetOneByOne) {
    const RecordSet from = all();
    from.set("Km", 12.5);
    from.set("Erledigt", 1);
    from.set("Datum", "2026-03-01 14:30:00");
    from.set("Vorlage", "2026-03-01");
    from.set("Notiz", std::string(5000, 'n') + "ä");
    from.set("Stichwort1", std::string(4, ' '));
    save(from);
    const RecordSet source = all();
    const RecordSet copies = select("SELECT * FROM AKT WHERE 1=2");
    const RecordSet one_by_one = select("SELECT * FROM AKT WHERE 1=2");
    for (; !source.at_end(); source.move_next()) {
        copies.add_new();
        copies.copy_fields(source, "|DSN|STAMP|");
        one_by_one.add_new();
        for (std::int32_t i = 0; i < source.field_count(); ++i) {
            const std::string name = source.field_name(i);
            if (name != "DSN" && name != "STAMP") {
                one_by_one.set(name, source.value_at(i));
            }
            EXPECT_EQ(copies.value(name), one_by_one.value(name)) << name;
        }
        EXPECT_EQ(copies.value("DSN"), Variant(Null{}));
        copies.set("DSN", "Kopie " + copies.value("Subject").get<std::string>());
    }
    save(copies);
    EXPECT_EQ(single("SELECT Notiz FROM AKT WHERE DSN='Kopie a'"),
              Variant(std::string(5000, 'n') + "ä"));
    EXPECT_EQ(single("SELECT count(*) FROM AKT WHERE DSN LIKE 'Kopie%'"), Variant(3));
}

TEST_F(ARecordSet, TakesFieldsThatTheStatementSpellsOrOrdersDifferently) {
    const RecordSet source = select("SELECT Stichwort1 AS Subject, KM FROM AKT ORDER BY Subject");
    const RecordSet copy = select("SELECT DSN, Km, Subject FROM AKT WHERE 1=2");
    copy.add_new();
    copy.copy_fields(source, "");
    EXPECT_EQ(copy.value("Subject"), source.value("Subject"));
    EXPECT_EQ(copy.value("Km"), source.value("Km"));
}

TEST_F(ARecordSet, RefusesFieldsThatItCannotTakeAndKeepsThoseBefore) {
    const RecordSet source = all();
    const RecordSet copy = select("SELECT DSN, Subject FROM AKT WHERE 1=2");
    EXPECT_EQ(error_of([&] { copy.copy_fields(source, ""); }).number(),
              number(HostError::NoCurrentRow));
    copy.add_new();
    const AutomationError error =
        error_of([&] { copy.copy_fields(source, "|STAMP|KENNUNG|AKT_DSN|ART_DSN|"); });
    EXPECT_EQ(error.number(), number(HostError::UnknownField));
    EXPECT_EQ(copy.value("Subject"), Variant("a"));
    source.move_next();
    source.move_next();
    source.move_next();
    EXPECT_EQ(error_of([&] { copy.copy_fields(source, ""); }).number(),
              number(HostError::NoCurrentRow));
}

TEST_F(ARecordSet, GivesNothingOnceClosed) {
    const RecordSet rs = all();
    object(rs).call("Close");
    EXPECT_EQ(error_of([&] { (void)rs.at_end(); }).number(), number(HostError::Closed));
    EXPECT_EQ(error_of([&] { (void)rs.value("Subject"); }).number(), number(HostError::Closed));
}

TEST_F(ARecordSet, OutlivesItsSession) {
    const RecordSet rs = all();
    connector = nullptr;
    EXPECT_EQ(rs.value("Subject"), Variant("a"));
    rs.set("Subject", "x");
    EXPECT_EQ(rs.value("Subject"), Variant("x"));
}

TEST_F(ARecordSet, HoldsManyLongRows) {
    connector->BeginTrans();
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    for (int i = 0; i < 3000; ++i) {
        rs.add_new();
        rs.set("DSN", std::to_string(i));
        rs.set("Notiz", std::string(static_cast<std::size_t>(i), 'n'));
    }
    save(rs);
    connector->CommitTrans();
    const RecordSet read = select("SELECT DSN, Notiz FROM AKT WHERE Notiz IS NOT NULL");
    int count = 0;
    for (; !read.at_end(); read.move_next(), ++count) {
        const auto expected = std::stoul(read.value("DSN").get<std::string>());
        ASSERT_EQ(read.value("Notiz").get<std::string>().size(), expected);
    }
    EXPECT_EQ(count, 3000);
}

}  // namespace
}  // namespace cvdeveloper::standalone::testing
