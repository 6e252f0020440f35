// The copying of activities against the stand-alone host.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <vector>

#include "platform/clock.h"
#include "support/expect_error.h"
#include "support/standalone_application.h"
#include "support/temp_setting.h"

namespace cvdeveloper {
namespace {

constexpr Date reference{46'027};  // Monday 2026-01-05, which the template's dates refer to
constexpr Date start{46'086};      // Thursday 2026-03-05

std::string content_of(const std::string& path) {
    std::ifstream file(paths::to_system(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class CopyTest : public StandaloneApplicationTest {
  protected:
    using StandaloneApplicationTest::StandaloneApplicationTest;

    Variant field(const std::string& key, const std::string& column) {
        return single("SELECT " + column + " FROM AKT WHERE DSN='" + key + "'");
    }
    RecordSet find(const std::string& where) {
        return RecordSet(to_object(call("AKT_Find", where, "Kennung")));
    }
    std::vector<std::string> texts(const std::string& statement) {
        std::vector<std::string> values;
        for (const RecordSet rs = select(statement); !rs.at_end(); rs.move_next()) {
            values.push_back(joined_text(rs.value_at(0)));
        }
        return values;
    }
    // A link table's or detail table's columns of one activity.
    std::vector<std::string> features(const std::string& key) {
        return texts("SELECT MKM_DSN FROM AKTMKM WHERE Link_DSN='" + key + "' ORDER BY MKM_DSN");
    }
    std::vector<std::string> details(const std::string& key) {
        return texts(
            "SELECT FldArt_DSN || '|' || Eingabe || '|' || coalesce(Von_Num, '') || '|' || "
            "coalesce(ACL, '') FROM AKTDET WHERE AKT_DSN='" +
            key + "' ORDER BY FldArt_DSN");
    }
    // Copies the activities of a condition and saves the copies; their keys by the originals'.
    std::map<std::string, std::string> copy(const std::string& where, const std::string& project,
                                            Date from = {}, Date to = {},
                                            const std::string& user = {}) {
        std::vector<std::string> originals;
        for (const RecordSet rs = find(where); !rs.at_end(); rs.move_next()) {
            originals.push_back(to_text(rs.value("Dsn")));
        }
        const RecordSet copies(
            to_object(call("AKT_Copy", Variant(find(where)), user, project, to, from)));
        std::map<std::string, std::string> keys;
        for (const std::string& original : originals) {
            keys[original] = to_text(copies.value("Dsn"));
            copies.move_next();
        }
        EXPECT_TRUE(copies.at_end());
        call("AKT_Update", Variant(copies));
        return keys;
    }
};

class CopyTemplateTest : public CopyTest {
  protected:
    CopyTemplateTest() : CopyTest(true) {
        project = to_text(call("PROJEKTE_Create", "Verkauf Rosenweg 3"));
        keys = copy("Projekte_Dsn='" + template_key + "'", project, reference, start);
    }

    const std::string template_key = "B0000000-0000-4000-8000-000000000001";
    std::string project;
    std::map<std::string, std::string> keys;
};

TEST_F(CopyTemplateTest, EachActivityHasOneCopyWithKeysOfItsOwn) {
    ASSERT_EQ(keys.size(), 12U);
    std::set<std::string> all;
    for (const auto& [original, copied] : keys) {
        all.insert(copied);
        EXPECT_EQ(keys.count(copied), 0U);
        EXPECT_NE(field(copied, "Kennung"), field(original, "Kennung"));
        EXPECT_EQ(field(copied, "STAMP"), Variant(std::int32_t{0}));
        EXPECT_EQ(field(copied, "Projekte_Dsn"), Variant(project));
    }
    EXPECT_EQ(all.size(), 12U);
    EXPECT_EQ(texts("SELECT DISTINCT Kennung FROM AKT WHERE Projekte_Dsn='" + project + "'").size(),
              12U);
}

TEST_F(CopyTemplateTest, TreeIsTheSameTree) {
    std::size_t children = 0;
    for (const auto& [original, copied] : keys) {
        const Variant parent = field(original, "Akt_Dsn");
        if (parent.is<Null>()) {
            EXPECT_EQ(field(copied, "Akt_Dsn"), parent);
        } else {
            EXPECT_EQ(field(copied, "Akt_Dsn"), Variant(keys.at(to_text(parent)))) << original;
            ++children;
        }
    }
    EXPECT_EQ(children, 11U);
}

TEST_F(CopyTemplateTest, OtherColumnsAreTheSame) {
    const std::set<std::string> changed = {"DSN",       "STAMP",        "KENNUNG",
                                           "AKT_DSN",   "PROJEKTE_DSN", "DATUM",
                                           "DATUM_BIS", "VORLAGE",      "ALARM"};
    for (const auto& [original, copied] : keys) {
        const RecordSet source = select("SELECT * FROM AKT WHERE DSN='" + original + "'");
        const RecordSet target = select("SELECT * FROM AKT WHERE DSN='" + copied + "'");
        for (std::int32_t i = 0; i < source.field_count(); ++i) {
            std::string name = source.field_name(i);
            for (char& c : name) {
                c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
            }
            if (!changed.contains(name)) {
                EXPECT_EQ(target.value_at(i), source.value_at(i)) << original << " " << name;
            }
        }
    }
}

TEST_F(CopyTemplateTest, DatesMoveByWorkingDaysAndTakeTheStartsTimeOfDay) {
    const auto moved = [this](const std::string& number, const std::string& column) {
        return field(keys.at("AC000000-0000-4000-8000-0000000000" + number), column);
    };
    EXPECT_EQ(moved("01", "Datum"), Variant(start));
    EXPECT_EQ(moved("01", "Vorlage"), Variant(make_date({2026, 3, 16})));  // 7 days after
    EXPECT_EQ(moved("02", "Datum"), Variant(make_date({2026, 3, 6})));     // was at 10:00
    EXPECT_EQ(moved("06", "Datum"), Variant(make_date({2026, 3, 16})));
    EXPECT_EQ(moved("01", "Datum_Bis"), Variant(Null{}));
    for (const auto& [original, copied] : keys) {
        const Variant date = field(copied, "Datum");
        EXPECT_NE(weekday(date.get<Date>()), 1) << original;
        EXPECT_NE(weekday(date.get<Date>()), 7) << original;
    }
}

TEST_F(CopyTemplateTest, FeaturesDetailsAndLinksComeAlong) {
    std::size_t with_features = 0;
    std::size_t with_details = 0;
    std::size_t links = 0;
    for (const auto& [original, copied] : keys) {
        EXPECT_EQ(features(copied), features(original)) << original;
        EXPECT_EQ(details(copied), details(original)) << original;
        with_features += features(copied).empty() ? 0 : 1;
        with_details += details(copied).empty() ? 0 : 1;
        const std::string statement =
            "SELECT lngTyp || strsourcefilename || mail_attachment FROM Blob WHERE uidLINK_DSN='";
        const auto copied_links = texts(statement + copied + "' ORDER BY 1");
        EXPECT_EQ(copied_links, texts(statement + original + "' ORDER BY 1")) << original;
        links += copied_links.size();
    }
    EXPECT_EQ(with_features, 12U);
    EXPECT_EQ(with_details, 8U);
    EXPECT_EQ(links, 3U);
}

class CopyAttachmentsTest : public CopyTest {
  protected:
    std::string write(const std::string& name, const std::string& content) const {
        std::ofstream(paths::to_system(folder.path(name)), std::ios::binary) << content;
        return folder.path(name);
    }

  private:
    const TempSetting setting_{folder.path().c_str()};
};

TEST_F(CopyAttachmentsTest, StoredContentIsCopiedAndOutlivesItsOriginal) {
    const std::string original = app->AKT_Create("", "Vorlage");
    app->AKT_Blob_Add(original, write("Vertrag.pdf", "Inhalt"));
    app->AKT_Blob_Add(original, write("Plan.png", "Bild"), false, false);
    app->AKT_Blob_Add(original, "C:\\Dokumente\\Liste.xlsx", true, true);
    const std::string copied = copy("Subject='Vorlage'", "").at(original);

    std::map<std::string, std::string> contents;
    std::map<std::string, Variant> marks;
    for (const RecordSet rs = app->BLOB_GetInfo(copied); !rs.at_end(); rs.move_next()) {
        const std::string path = to_text(rs.value("strsourcefilename"));
        const std::string name = path.substr(path.find_last_of("/\\") + 1);
        marks[name] = rs.value("mail_attachment");
        if (rs.value("lngTyp") == Variant(std::int32_t{6})) {
            contents[name] = to_text(rs.value("Dsn"));
        }
    }
    EXPECT_EQ(marks, (std::map<std::string, Variant>{{"Vertrag.pdf", std::int16_t{1}},
                                                     {"Plan.png", std::int16_t{0}},
                                                     {"Liste.xlsx", std::int16_t{1}}}));
    for (const RecordSet rs = app->BLOB_GetInfo(original); !rs.at_end(); rs.move_next()) {
        app->BLOB_Del(to_text(rs.value("Dsn")), "");
    }
    host::Blob& blob = dynamic_cast<host::Blob&>(*app->oBlob());
    EXPECT_EQ(content_of(blob.OpenBlobFile(contents.at("Vertrag.pdf"), copied, 6)), "Inhalt");
    EXPECT_EQ(content_of(blob.OpenBlobFile(contents.at("Plan.png"), copied, 6)), "Bild");
}

TEST_F(CopyAttachmentsTest, OtherKindsAreNotCopied) {
    host::Blob& blob = dynamic_cast<host::Blob&>(*app->oBlob());
    blob.SaveBlobFile(write("a", "x"), "SOURCE", 6);
    blob.SaveBlobFile("link", "SOURCE", 7);
    blob.SaveBlobFile(write("a", "x"), "SOURCE", 1);
    EXPECT_EQ(app->BLOB_Copy("SOURCE", "TARGET"), 2);
    EXPECT_EQ(count("SELECT DSN FROM Blob WHERE uidLINK_DSN='TARGET'"), 2);
}

TEST_F(CopyAttachmentsTest, SavedAttachmentCanBeMovedAnywhere) {
    const std::string key = app->AKT_Create("", "Akte");
    app->AKT_Blob_Add(key, write("Brief.txt", "Hallo"));
    const std::string target = app->BLOB_SaveAs(app->BLOB_GetInfo(key), folder.path(), "Kopie.txt");
    EXPECT_EQ(content_of(target), "Hallo");
    EXPECT_EQ(content_of(folder.path("Kopie.txt")), "Hallo");
}

TEST_F(CopyAttachmentsTest, LostContentEndsTheCopyAndWhatWasWrittenStays) {
    const std::string original = app->AKT_Create("", "Vorlage");
    app->AKT_Merkmal_Add(original, "MERKMAL");
    app->AKT_Blob_Add(original, write("a.txt", "x"));
    for (const auto& entry :
         std::filesystem::directory_iterator(paths::to_system(folder.path("büro") + "/Anlagen"))) {
        std::filesystem::remove(entry.path());
    }
    const auto before = count("SELECT DSN FROM AKTMKM");
    expect_error_number(53, [&] { return app->AKT_Copy(find("Subject='Vorlage'")); });
    EXPECT_GT(count("SELECT DSN FROM AKTMKM"), before);
    EXPECT_EQ(count("SELECT DSN FROM AKT"), 1);
}

using CopyPlainTest = CopyTest;

TEST_F(CopyPlainTest, ParentsOutsideTheCopiedOnesStay) {
    const std::string outside = app->AKT_Create("", "draußen");
    const std::string a = app->AKT_Create("", "Vorlage A");
    const std::string b = app->AKT_Create("", "Vorlage B");
    const std::string c = app->AKT_Create("", "Vorlage C");
    app->oBase()->Sql_SetField("AKT", b, "Akt_Dsn", a);
    app->oBase()->Sql_SetField("AKT", c, "Akt_Dsn", outside);
    const auto keys = copy("Subject LIKE 'Vorlage%'", "");
    EXPECT_EQ(field(keys.at(a), "Akt_Dsn"), Variant(Null{}));
    EXPECT_EQ(field(keys.at(b), "Akt_Dsn"), Variant(keys.at(a)));
    EXPECT_EQ(field(keys.at(c), "Akt_Dsn"), Variant(outside));
}

TEST_F(CopyPlainTest, UserAndMomentAreTheSourcesUnlessAUserIsGiven) {
    const std::string original = app->AKT_Create("", "Vorlage");
    app->oBase()->Sql_SetField("AKT", original, "NEU_BEN_DSN", "ALT");
    app->oBase()->Sql_SetField("AKT", original, "ANGELEGT", Date{40'000});
    app->oBase()->Sql_SetField("AKT", original, "ÄN_BEN_DSN", "ALT");
    app->oBase()->Sql_SetField("AKT", original, "TOUCH", Date{40'001});
    const std::string plain = copy("DSN='" + original + "'", "").at(original);
    EXPECT_EQ(field(plain, "NEU_BEN_DSN"), Variant("ALT"));
    EXPECT_EQ(field(plain, "ANGELEGT"), Variant(Date{40'000}));
    EXPECT_EQ(field(plain, "TOUCH"), Variant(Date{40'001}));
    const std::string owned = copy("DSN='" + original + "'", "", {}, {}, "NEU").at(original);
    EXPECT_EQ(field(owned, "NEU_BEN_DSN"), Variant("NEU"));
    EXPECT_EQ(field(owned, "ÄN_BEN_DSN"), Variant("NEU"));
    EXPECT_NEAR(field(owned, "ANGELEGT").get<Date>().days, now().days, 0.01);
    EXPECT_NEAR(field(owned, "TOUCH").get<Date>().days, now().days, 0.01);
}

TEST_F(CopyPlainTest, NothingToCopyWritesNothing) {
    const RecordSet copies = app->AKT_Copy(find("1=2"));
    EXPECT_TRUE(copies.at_end());
    EXPECT_EQ(count("SELECT DSN FROM AKT"), 0);
}

TEST_F(CopyPlainTest, CopiesAreNotSavedButWhatHangsOnThemIs) {
    const std::string original = app->AKT_Create("", "Vorlage");
    app->AKT_Merkmal_Add(original, "MERKMAL");
    const RecordSet copies = app->AKT_Copy(find("Subject='Vorlage'"));
    const std::string copied = to_text(copies.value("Dsn"));
    EXPECT_EQ(count("SELECT DSN FROM AKT"), 1);
    EXPECT_EQ(features(copied), std::vector<std::string>{"MERKMAL"});
}

}  // namespace
}  // namespace cvdeveloper
