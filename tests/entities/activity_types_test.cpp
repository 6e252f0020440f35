#include "cvdeveloper/entities/activity_types.h"

#include "entities/record_test.h"

namespace cvdeveloper {
namespace {

class ActivityTypesTest : public RecordTest {
  protected:
    ActivityTypes types{session};
};

TEST_F(ActivityTypesTest, NewTypeIsActiveAndHasNoHumanKey) {
    const RecordSet rs = types.AKTART_New();
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM Aktivitätenarten  WHERE 1=2", "AddNew",
                                 "DSN = 'GUID-1'", "Aktiv = 1", "Priorität = 1"}));
    EXPECT_EQ(rs.value("Aktiv"), Variant(std::int16_t{1}));
}

TEST_F(ActivityTypesTest, CreateWithoutArgumentsWritesZerosAndNeitherRightsNorFeatures) {
    EXPECT_EQ(types.AKTART_Create(), "GUID-1");
    EXPECT_EQ(host.log(), (Lines{"SELECT * FROM Aktivitätenarten  WHERE 1=2",
                                 "AddNew",
                                 "DSN = 'GUID-1'",
                                 "Aktiv = 1",
                                 "Priorität = 1",
                                 "Name = ''",
                                 "Kurz = ''",
                                 "Notiz = ''",
                                 "default_views = ''",
                                 "Vorlage = 0",
                                 "Minuten = 0",
                                 "Kosten = 0",
                                 "km = 0",
                                 "BackColor = 0",
                                 "FontColor = 0",
                                 "Ohne_Uhrzeit = 0",
                                 "Kalender = 0",
                                 "Quickakt = 0",
                                 "Erledigt = 0",
                                 "Adlos = 0",
                                 "default_emsk_dsn = Null",
                                 "Update"}));
}

TEST_F(ActivityTypesTest, CreateWritesEachArgumentIntoItsColumn) {
    types.AKTART_Create("Besichtigung", "Bes", "Notiz", "Sicht", 3, 1.5, 2.5, 3.5, 255, 65'280,
                        true, true, true, true, true, "EMSK");
    const Lines log = host.log();
    ASSERT_EQ(log.size(), 22U);
    EXPECT_EQ(Lines(log.begin() + 5, log.end()),
              (Lines{"Name = 'Besichtigung'", "Kurz = 'Bes'", "Notiz = 'Notiz'",
                     "default_views = 'Sicht'", "Vorlage = 3", "Minuten = 1,5", "Kosten = 2,5",
                     "km = 3,5", "BackColor = 255", "FontColor = 65280", "Ohne_Uhrzeit = 1",
                     "Kalender = 1", "Quickakt = 1", "Erledigt = 1", "Adlos = 1",
                     "default_emsk_dsn = 'EMSK'", "Update"}));
}

TEST_F(ActivityTypesTest, CreateCutsNameShortNameAndViews) {
    const std::string text(60, 'x');
    types.AKTART_Create(text, "Besichtigun", text, text);
    EXPECT_EQ(first_written("Name"), "'" + std::string(50, 'x') + "'");
    EXPECT_EQ(first_written("Kurz"), "'Besic'");
    EXPECT_EQ(first_written("Notiz"), "'" + text + "'");
    EXPECT_EQ(first_written("default_views"), "'" + std::string(50, 'x') + "'");
}

}  // namespace
}  // namespace cvdeveloper
