#include "cvdeveloper/details/features.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/unit.h"
#include "data/help_texts.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

constexpr Parameter table_parameter{.name = "strTable", .help = "main table's name"};
constexpr Parameter record_parameter{.name = "strLinkDsn", .help = help::key_argument};
constexpr Parameter list_parameter{.name = "strMkmDSNCommaList",
                                   .help = "feature keys separated by \",\""};

constexpr Parameter exists_parameters[] = {
    table_parameter,
    record_parameter,
    {.name = "strMkmDSN", .help = "the feature's key"},
};
constexpr Parameter switch_parameters[] = {
    table_parameter,
    record_parameter,
    {.name = "strDSNOld", .help = "key of the feature to replace; \"\" adds"},
    {.name = "strDSNNew",
     .help = "key of the feature that takes its place; \"\" removes",
     .direction = Direction::InOut},
};
constexpr Parameter list_parameters[] = {table_parameter, record_parameter, list_parameter};
constexpr Parameter get_parameters[] = {table_parameter, record_parameter};
constexpr Parameter copy_parameters[] = {
    table_parameter,
    {.name = "strSourceDsn", .help = "key of the record to copy from"},
    {.name = "strDestDsn", .help = "key of the record to copy to"},
};

constexpr char link_table[] = "Reads and writes strTable + MKM.";

constexpr Operation rows[] = {
    {.id = 80,
     .name = "Mkm_Exists",
     .kind = OperationKind::Method,
     .binding = bind<&Features::Mkm_Exists>,
     .parameters = exists_parameters,
     .help = {.what = "Whether a record carries a feature.",
              .result = "True or False.",
              .errors = help::session_and_host_errors,
              .tables = "Reads strTable + MKM.",
              .example = "app.oBase.Mkm_Exists(\"AKT\", akt, mkm)"}},
    {.id = 81,
     .name = "Mkm_Switch",
     .kind = OperationKind::Method,
     .binding = bind<&Features::Mkm_Switch, switch_parameters>,
     .parameters = switch_parameters,
     .help = {.what = "Replaces one feature of a record by another: the first link row found is "
                      "changed. An empty old key adds the new one where it is missing, an empty "
                      "new key removes the first link of the old one. Replacing does not look "
                      "whether the record carries the new feature already.",
              .result = "True if a row was added, changed or deleted.",
              .errors = help::session_and_host_errors,
              .tables = link_table,
              .example = "app.oBase.Mkm_Switch(\"AKT\", akt, old, new)"}},
    {.id = 82,
     .name = "Mkm_Add",
     .kind = OperationKind::Method,
     .binding = bind<&Features::Mkm_Add>,
     .parameters = list_parameters,
     .help = {.what = "Gives a record features. One it carries already, and an empty item, are "
                      "passed over.",
              .result = "Always False.",
              .errors = help::session_and_host_errors,
              .tables = link_table,
              .example = "app.oBase.Mkm_Add(\"AKT\", akt, mkm1 + \",\" + mkm2)"}},
    {.id = 83,
     .name = "Mkm_Del",
     .kind = OperationKind::Method,
     .binding = bind<&Features::Mkm_Del>,
     .parameters = list_parameters,
     .help = {.what = "Takes features off a record: one link row for each key named.",
              .result = "Always False.",
              .errors = help::session_and_host_errors,
              .tables = link_table,
              .example = "app.oBase.Mkm_Del(\"AKT\", akt, mkm1)"}},
    {.id = 84,
     .name = "Mkm_Get",
     .kind = OperationKind::Method,
     .binding = bind<&Features::Mkm_Get>,
     .parameters = get_parameters,
     .help = {.what = "A record's features, in the order in which the host gives them.",
              .result = "Feature keys separated by \",\"; \"\" where there are none.",
              .errors = help::session_and_host_errors,
              .tables = "Reads strTable + Mkm.",
              .example = "app.MKM_NameByDSNList(app.oBase.Mkm_Get(\"AKT\", akt))"}},
    {.id = 85,
     .name = "Mkm_Copy",
     .kind = OperationKind::Method,
     .binding = bind<&Features::Mkm_Copy>,
     .parameters = copy_parameters,
     .help = {.what = "Gives one record the features of another of the same table. Those it has "
                      "stay, none is doubled.",
              .errors = help::session_and_host_errors,
              .tables = link_table,
              .example = "app.oBase.Mkm_Copy(\"AKT\", source, copy)"}},
};

}  // namespace

std::span<const Operation> Features::operations() noexcept {
    return rows;
}

RecordSet Features::links(std::string_view table, std::string_view link_key,
                          std::string_view feature_key) const {
    host::Util& util = session().util();
    return Gateway(session()).CV_GetRecordset("SELECT * FROM " + upper_case(table) +
                                              "MKM WHERE (link_dsn=" + util.SqlUid(link_key) +
                                              ") AND (mkm_dsn=" + util.SqlUid(feature_key) + ")");
}

bool Features::Mkm_Exists(std::string_view strTable, std::string_view strLinkDsn,
                          std::string_view strMkmDSN) const {
    return !links(strTable, strLinkDsn, strMkmDSN).at_end();
}

bool Features::Mkm_Switch(std::string_view strTable, std::string_view strLinkDsn,
                          std::string_view strDSNOld, std::string_view strDSNNew) const {
    host::Util& util = session().util();
    const bool adds = strDSNOld.empty();
    RecordSet rs = links(strTable, strLinkDsn, adds ? strDSNNew : strDSNOld);
    if (adds) {
        if (strDSNNew.empty() || !rs.at_end()) {
            return false;
        }
        rs.add_new();
        rs.set("DSN", util.NewGUID());
        rs.set("Link_DSN", util.SqlStrNull(strLinkDsn));
        rs.set("MKM_DSN", util.SqlStrNull(strDSNNew));
    } else if (rs.at_end()) {
        return false;
    } else if (strDSNNew.empty()) {
        rs.remove();
    } else {
        rs.set("MKM_DSN", util.SqlStrNull(strDSNNew));
    }
    Gateway(session()).CV_UpdateRecordset(rs);
    return true;
}

bool Features::Mkm_Add(std::string_view strTable, std::string_view strLinkDsn,
                       std::string_view strMkmDSNCommaList) const {
    in_unit(session(), [&] {
        std::string list(strMkmDSNCommaList);
        while (!list.empty()) {
            Mkm_Switch(strTable, strLinkDsn, "", take_first(list, ","));
        }
    });
    return false;
}

bool Features::Mkm_Del(std::string_view strTable, std::string_view strLinkDsn,
                       std::string_view strMkmDSNCommaList) const {
    in_unit(session(), [&] {
        std::string list(strMkmDSNCommaList);
        while (!list.empty()) {
            Mkm_Switch(strTable, strLinkDsn, take_first(list, ","), "");
        }
    });
    return false;
}

std::string Features::Mkm_Get(std::string_view strTable, std::string_view strLinkDsn) const {
    std::string statement("SELECT * FROM ");
    statement.append(strTable).append("Mkm WHERE Link_dsn='").append(strLinkDsn).append("'");
    const RecordSet rs = Gateway(session()).CV_GetRecordset(statement);
    std::string list;
    for (; !rs.at_end(); rs.move_next()) {
        list.append(",").append(joined_text(rs.value("Mkm_Dsn")));
    }
    return list.empty() ? list : list.substr(1);
}

void Features::Mkm_Copy(std::string_view strTable, std::string_view strSourceDsn,
                        std::string_view strDestDsn) const {
    Mkm_Add(strTable, strDestDsn, Mkm_Get(strTable, strSourceDsn));
}

}  // namespace cvdeveloper
