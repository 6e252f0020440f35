#include "entities/families/rows.h"

#include <array>
#include <cstddef>

namespace cvdeveloper::families {

namespace {

using enum Kind;

constexpr KindSet catalogue{Find, FindDsn, FindByDsn, Delete, DeleteByDsn, Update};
constexpr KindSet records = catalogue | KindSet{FindByKennung, FindDsnByKennung, Show, ShowDsn};
constexpr KindSet features{MerkmalAdd, MerkmalDel, MerkmalSwitch, MerkmalContains, MerkmalStd};
constexpr KindSet details{DetailDelete, DetailSet, DetailGet, DetailSetOption, DetailGetOption};
constexpr KindSet names{FindByName, FindDsnByName, NameByDsn};
constexpr KindSet names_within{FindByNameWithin, FindDsnByNameWithin, NameByDsn};

}  // namespace

constexpr Family AKT{
    .block = 1000,
    .prefix = "AKT",
    .table = "AKT",
    .form = "F_AKT",
    .kinds = records | features | details | KindSet{MerkmalGet, MerkmalCopy, DetailCopy},
    .form_condition = "Akt.Dsn IN (SELECT Dsn FROM Akt WHERE ",
    .key_argument = "strAktDsn",
    .record_set_argument = "rsAkt",
    .article = "an",
    .record = "activity",
    .records = "activities",
    .condition = "Erledigt = 0",
};

constexpr Family OBJ{
    .block = 1100,
    .prefix = "OBJ",
    .table = "OBJ",
    .form = "F_OBJ",
    .kinds = records | features | details,
    .key_argument = "strObjDsn",
    .record_set_argument = "rsObj",
    .article = "a",
    .record = "property object",
    .records = "property objects",
    .condition = "Aktiv = 1",
};

constexpr Family PROJEKTE{
    .block = 1200,
    .prefix = "PROJEKTE",
    .table = "Projekte",
    .form = "F_PROJEKTE",
    .kinds = records | features | details | KindSet{FindDsnByName},
    .other_table = "PROJEKTE",
    .other_table_kinds = {FindDsn, FindDsnByKennung, DeleteByDsn, DetailDelete, FindDsnByName},
    .name_column = "Bezeichnung",
    .key_argument = "strProjekteDsn",
    .record_set_argument = "rsProjekte",
    .name_argument = "strProjektBezeichnung",
    .article = "a",
    .record = "project",
    .records = "projects",
    .condition = "FArchiv = 0",
};

constexpr Family ANF{
    .block = 1300,
    .prefix = "ANF",
    .table = "ANF",
    .form = "F_ANF",
    .kinds = records | features | details,
    .key_argument = "strAnfDsn",
    .record_set_argument = "rsAnf",
    .article = "a",
    .record = "request",
    .records = "requests",
    .condition = "Aktiv = 1",
};

constexpr Family AKTEN{
    .block = 1400,
    .prefix = "AKTEN",
    .table = "AKTEN",
    .form = "F_AKTEN",
    .kinds = records | features | details,
    .key_argument = "strAktenDsn",
    .record_set_argument = "rsAkten",
    .article = "a",
    .record = "case file",
    .records = "case files",
    .condition = "FArchiv = 0",
};

constexpr Family VERTRAEGE{
    .block = 1500,
    .prefix = "VERTRAEGE",
    .table = "VERTRÄGE",
    .form = "F_VERTRÄGE",
    .kinds = records | features | details,
    .other_table = "VERTRAEGE",
    .other_table_kinds = {FindDsnByKennung, DetailDelete},
    .key_argument = "strVertraegeDsn",
    .record_set_argument = "rsVertraege",
    .article = "a",
    .record = "contract",
    .records = "contracts",
    .condition = "Aktiv = 1",
};

constexpr Family AD{
    .block = 1600,
    .prefix = "AD",
    .table = "AD",
    .form = "F_AD",
    .kinds = records | features,
    .key_argument = "strAdDsn",
    .record_set_argument = "rsAd",
    .article = "an",
    .record = "address",
    .records = "addresses",
    .condition = "Ort = 'Essen'",
};

constexpr Family Details{
    .block = 1700,
    .prefix = "Details",
    .table = "Details",
    .form = "F_Details",
    .kinds = records | features | details | KindSet{FindByName, FindDsnByName},
    .name_column = "Oberbegriff",
    .drops_detail_word = true,
    .key_argument = "strDetailsDsn",
    .record_set_argument = "rsDetails",
    .name_argument = "strDetailsOberbegriff",
    .article = "a",
    .record = "detail sheet",
    .records = "detail sheets",
    .condition = "Oberbegriff = 'Finanzierung'",
};

constexpr Family MKM{
    .block = 1800,
    .prefix = "MKM",
    .table = "Mkm",
    .kinds = catalogue | names | KindSet{LastNameOfList},
    .other_table = "MKM",
    .other_table_kinds = {FindDsn, DeleteByDsn, NameByDsn},
    .name_column = "Merkmal",
    .record_set_argument = "rsMkm",
    .name_argument = "strMerkmalName",
    .article = "a",
    .record = "feature",
    .records = "features",
    .condition = "Aktiv = 1",
};

constexpr Family EMSK{
    .block = 1900,
    .prefix = "EMSK",
    .table = "EMSK",
    .kinds = catalogue | names | KindSet{NamesOfList},
    .name_column = "Name",
    .name_column_by_key = "NAME",
    .record_set_argument = "rsEmsk",
    .name_argument = "strEmskName",
    .article = "an",
    .record = "entry mask",
    .records = "entry masks",
    .condition = "Aktiv = 1",
};

constexpr Family FldArt{
    .block = 2000,
    .prefix = "FldArt",
    .table = "FldArt",
    .kinds = catalogue | names | KindSet{NamesOfList},
    .name_column = "Kürzel",
    .record_set_argument = "rsFldArt",
    .name_argument = "strFldArtKuerzel",
    .article = "a",
    .record = "field kind",
    .records = "field kinds",
    .condition = "Aktiv = 1",
};

constexpr Family FldArtOp{
    .block = 2100,
    .prefix = "FldArtOp",
    .table = "FldArtOp",
    .kinds = catalogue | names_within | KindSet{LastNameOfList},
    .name_column = "Bezeichnung",
    .owner_column = "FldArt_Dsn",
    .record_set_argument = "rsFldArtOp",
    .name_argument = "strFldArtOpBezeichnung",
    .article = "an",
    .record = "option",
    .records = "options",
    .condition = "Defaultwert = 1",
};

constexpr Family AKTART{
    .block = 2200,
    .prefix = "AKTART",
    .table = "Aktivitätenarten",
    .kinds = catalogue | names | KindSet{LastNameOfList},
    .name_column = "Name",
    .record_set_argument = "rsAktArt",
    .name_argument = "strAktivitaetenartName",
    .article = "an",
    .record = "activity type",
    .records = "activity types",
    .condition = "Aktiv = 1",
};

namespace {

constexpr std::array rows{&AKT,     &OBJ, &PROJEKTE, &ANF,    &AKTEN,    &VERTRAEGE, &AD,
                          &Details, &MKM, &EMSK,     &FldArt, &FldArtOp, &AKTART};

constexpr bool blocks_follow_each_other() {
    std::int32_t block = first_block;
    for (const Family* family : rows) {
        if (family->block != block) {
            return false;
        }
        block += block_size;
    }
    return true;
}
static_assert(blocks_follow_each_other());
static_assert(rows.size() == family_count);

}  // namespace

std::span<const Family* const> all() noexcept {
    return rows;
}

const Family& family_of(std::int32_t id) noexcept {
    return *rows[static_cast<std::size_t>((id - first_block) / block_size)];
}

}  // namespace cvdeveloper::families
