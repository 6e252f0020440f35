// Parents and roots against the stand-alone host.
#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/standalone_application.h"

namespace cvdeveloper {
namespace {

struct Chain {
    std::string prefix;
    std::string parent_column;
    std::string parent;
    std::string root;
    std::string source;
    std::string noun;
};

class ChainTest : public StandaloneApplicationTest, public testing::WithParamInterface<Chain> {
  protected:
    void add(const std::string& key, const std::string& parent) {
        const RecordSet rs(to_object(call(GetParam().prefix + "_Find", "1=2")));
        rs.add_new();
        rs.set("DSN", key);
        rs.set("Kennung", "N-" + key);
        rs.set(GetParam().parent_column, parent.empty() ? Variant(Null{}) : Variant(parent));
        call(GetParam().prefix + "_Update", Variant(rs));
    }
    std::string root(const std::string& key) { return to_text(call(GetParam().root, key)); }
    std::string parent(const std::string& key) { return to_text(call(GetParam().parent, key)); }
};

TEST_P(ChainTest, TheRootIsTheTopOfTheChain) {
    add("A", "B");
    add("B", "C");
    add("C", "");
    EXPECT_EQ(parent("A"), "B");
    EXPECT_EQ(parent("C"), "");
    EXPECT_EQ(root("A"), "C");
    EXPECT_EQ(root("C"), "C");
}

TEST_P(ChainTest, ADeletedParentCountsAsNone) {
    add("A", "GONE");
    EXPECT_EQ(parent("A"), "");
    EXPECT_EQ(root("A"), "A");
}

TEST_P(ChainTest, ALoopIsAnErrorWithTheHumanKeys) {
    add("A", "P1");
    add("P1", "P2");
    add("P2", "P1");
    // The walk over addresses is a step ahead of the others, for it knows where it started.
    const bool ahead = GetParam().prefix == "AD";
    const std::string codes = ahead ? "'N-P2' und 'N-P1'" : "'N-P1' und 'N-P2'";
    expect_error(601, GetParam().source,
                 "Zyklische Verknüpfung zwischen " + GetParam().noun + " " + codes,
                 [&] { root("A"); });
}

TEST_P(ChainTest, ARecordThatIsItsOwnParentIsALoop) {
    add("A", "A");
    expect_error(601, GetParam().source,
                 "Zyklische Verknüpfung zwischen " + GetParam().noun + " 'N-A' und 'N-A'",
                 [&] { root("A"); });
}

INSTANTIATE_TEST_SUITE_P(
    All, ChainTest,
    testing::Values(Chain{"AKT", "AKT_DSN", "AKT_GetParentAKTDsn", "AKT_GetRootAKTDsn",
                          "AKT_GetRootAktDsn", "Aktivität"},
                    Chain{"OBJ", "OBJ_DSN", "OBJ_GetParentOBJDsn", "OBJ_GetRootOBJDsn",
                          "OBJ_GetRootOBJDsn", "Objekt"},
                    Chain{"PROJEKTE", "PROJEKTE_DSN", "PROJEKTE_GetParentProjekteDsn",
                          "PROJEKTE_GetRootProjekteDsn", "PROJEKTE_GetRootProjekteDsn", "Projekt"},
                    Chain{"AD", "AD_DSN", "AD_GetParentAdDsn", "AD_GetRootAdDsn", "AD_GetRootADDsn",
                          "Adresse"}),
    [](const auto& test) { return test.param.prefix; });

}  // namespace
}  // namespace cvdeveloper
