#include "cvdeveloper/entities/hierarchy.h"

#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "data/help_texts.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

// How one kind of record hangs together.
struct Chain {
    std::string_view parent_statement;  // the key's literal follows
    std::string_view parent_column;
    std::string_view table;
    std::string_view cycle_message;
    std::string_view cycle_source;
    // The walk over addresses alone counts the record that it starts from as visited; the others
    // notice a loop one round later.
    bool start_is_visited = false;
};

constexpr Chain activities{
    .parent_statement =
        "SELECT AKT.AKT_DSN FROM AKT INNER JOIN AKT as AKT1 ON AKT.AKT_DSN = AKT1.DSN "
        "WHERE AKT.DSN=",
    .parent_column = "AKT_DSN",
    .table = "AKT",
    .cycle_message = "Zyklische Verknüpfung zwischen Aktivität '§1§' und '§2§'",
    .cycle_source = "AKT_GetRootAktDsn",
};
constexpr Chain objects{
    .parent_statement =
        "SELECT Obj.Obj_DSN FROM Obj INNER JOIN Obj as Obj1 ON Obj.Obj_DSN = Obj1.DSN "
        "WHERE Obj.DSN=",
    .parent_column = "OBJ_DSN",
    .table = "OBJ",
    .cycle_message = "Zyklische Verknüpfung zwischen Objekt '§1§' und '§2§'",
    .cycle_source = "OBJ_GetRootOBJDsn",
};
constexpr Chain projects{
    .parent_statement =
        "SELECT Projekte.Projekte_DSN FROM Projekte "
        "INNER JOIN Projekte as Projekte1 ON Projekte.Projekte_DSN = Projekte1.DSN "
        "WHERE Projekte.DSN=",
    .parent_column = "PROJEKTE_DSN",
    .table = "PROJEKTE",
    .cycle_message = "Zyklische Verknüpfung zwischen Projekt '§1§' und '§2§'",
    .cycle_source = "PROJEKTE_GetRootProjekteDsn",
};
constexpr Chain addresses{
    .parent_statement =
        "SELECT AD.AD_DSN FROM AD INNER JOIN AD as AD1 ON AD.AD_DSN = AD1.DSN "
        "WHERE AD.DSN=",
    .parent_column = "AD_DSN",
    .table = "AD",
    .cycle_message = "Zyklische Verknüpfung zwischen Adresse '§1§' und '§2§'",
    .cycle_source = "AD_GetRootADDsn",
    .start_is_visited = true,
};

std::string parent_of(Session& session, const Chain& chain, std::string_view key) {
    const RecordSet rs = Gateway(session).CV_GetRecordset(std::string(chain.parent_statement) +
                                                          session.util().SqlUid(key));
    return rs.at_end() ? std::string() : session.text(rs.value(chain.parent_column));
}

[[noreturn]] void raise_cycle(Session& session, const Chain& chain, std::string_view key,
                              std::string_view parent) {
    const TableOperations tables(session);
    const std::string code = tables.Sql_GetKennung(chain.table, key);
    const std::string parent_code = tables.Sql_GetKennung(chain.table, parent);
    throw AutomationError(
        601, std::string(chain.cycle_source),
        replace_all(replace_all(chain.cycle_message, "§1§", code), "§2§", parent_code));
}

std::string root_of(Session& session, const Chain& chain, std::string_view key) {
    std::string current(key);
    std::string next(key);
    std::string visited = chain.start_is_visited ? "|" + current + "|" : std::string();
    while (!next.empty()) {
        next = parent_of(session, chain, current);
        if (next.empty()) {
            break;
        }
        if (visited.find("|" + next + "|") != std::string::npos) {
            raise_cycle(session, chain, current, next);
        }
        visited.append(next).append("|");
        current = next;
    }
    return current;
}

constexpr Parameter activity_parameters[] = {{.name = "strAktDsn", .help = help::key_argument}};
constexpr Parameter object_parameters[] = {{.name = "strObjDsn", .help = help::key_argument}};
constexpr Parameter project_parameters[] = {{.name = "strProjekteDsn", .help = help::key_argument}};
constexpr Parameter address_parameters[] = {{.name = "strAdDsn", .help = help::key_argument}};

constexpr char parent_result[] = "A record key; \"\" where it has none, or one that is gone.";
constexpr char root_result[] = "A record key: the record's own where it has no parent.";

constexpr Operation rows[] = {
    {.id = 1090,
     .name = "AKT_GetParentAKTDsn",
     .kind = OperationKind::Method,
     .binding = bind<&Hierarchy::AKT_GetParentAKTDsn>,
     .parameters = activity_parameters,
     .help = {.what = "The activity that an activity hangs under.",
              .result = parent_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads AKT.",
              .example = "app.AKT_GetParentAKTDsn(akt)"}},
    {.id = 1091,
     .name = "AKT_GetRootAKTDsn",
     .kind = OperationKind::Method,
     .binding = bind<&Hierarchy::AKT_GetRootAKTDsn>,
     .parameters = activity_parameters,
     .help = {.what = "The top of an activity's chain of parents.",
              .result = root_result,
              .errors = "601 \"Zyklische Verknüpfung zwischen Aktivität '...' und '...'\" where "
                        "the chain loops; 601 \"CVDeveloper wurde nicht initialisiert\" without a "
                        "session; the host's own errors.",
              .tables = "Reads AKT.",
              .example = "app.AKT_GetRootAKTDsn(akt)"}},
    {.id = 1190,
     .name = "OBJ_GetParentOBJDsn",
     .kind = OperationKind::Method,
     .binding = bind<&Hierarchy::OBJ_GetParentOBJDsn>,
     .parameters = object_parameters,
     .help = {.what = "The property object that a property object hangs under.",
              .result = parent_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads OBJ.",
              .example = "app.OBJ_GetParentOBJDsn(obj)"}},
    {.id = 1191,
     .name = "OBJ_GetRootOBJDsn",
     .kind = OperationKind::Method,
     .binding = bind<&Hierarchy::OBJ_GetRootOBJDsn>,
     .parameters = object_parameters,
     .help = {.what = "The top of a property object's chain of parents.",
              .result = root_result,
              .errors = "601 \"Zyklische Verknüpfung zwischen Objekt '...' und '...'\" where the "
                        "chain loops; 601 \"CVDeveloper wurde nicht initialisiert\" without a "
                        "session; the host's own errors.",
              .tables = "Reads OBJ.",
              .example = "app.OBJ_GetRootOBJDsn(obj)"}},
    {.id = 1290,
     .name = "PROJEKTE_GetParentProjekteDsn",
     .kind = OperationKind::Method,
     .binding = bind<&Hierarchy::PROJEKTE_GetParentProjekteDsn>,
     .parameters = project_parameters,
     .help = {.what = "The project that a project hangs under.",
              .result = parent_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads Projekte.",
              .example = "app.PROJEKTE_GetParentProjekteDsn(projekt)"}},
    {.id = 1291,
     .name = "PROJEKTE_GetRootProjekteDsn",
     .kind = OperationKind::Method,
     .binding = bind<&Hierarchy::PROJEKTE_GetRootProjekteDsn>,
     .parameters = project_parameters,
     .help = {.what = "The top of a project's chain of parents.",
              .result = root_result,
              .errors = "601 \"Zyklische Verknüpfung zwischen Projekt '...' und '...'\" where the "
                        "chain loops; 601 \"CVDeveloper wurde nicht initialisiert\" without a "
                        "session; the host's own errors.",
              .tables = "Reads Projekte.",
              .example = "app.PROJEKTE_GetRootProjekteDsn(projekt)"}},
    {.id = 1690,
     .name = "AD_GetParentAdDsn",
     .kind = OperationKind::Method,
     .binding = bind<&Hierarchy::AD_GetParentAdDsn>,
     .parameters = address_parameters,
     .help = {.what = "The address that an address hangs under.",
              .result = parent_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads AD.",
              .example = "app.AD_GetParentAdDsn(ad)"}},
    {.id = 1691,
     .name = "AD_GetRootAdDsn",
     .kind = OperationKind::Method,
     .binding = bind<&Hierarchy::AD_GetRootAdDsn>,
     .parameters = address_parameters,
     .help = {.what = "The top of an address's chain of parents.",
              .result = root_result,
              .errors = "601 \"Zyklische Verknüpfung zwischen Adresse '...' und '...'\" where the "
                        "chain loops; 601 \"CVDeveloper wurde nicht initialisiert\" without a "
                        "session; the host's own errors.",
              .tables = "Reads AD.",
              .example = "app.AD_GetRootAdDsn(ad)"}},
};

}  // namespace

std::span<const Operation> Hierarchy::operations() noexcept {
    return rows;
}

std::string Hierarchy::AKT_GetParentAKTDsn(std::string_view strAktDsn) const {
    return parent_of(session(), activities, strAktDsn);
}

std::string Hierarchy::AKT_GetRootAKTDsn(std::string_view strAktDsn) const {
    return root_of(session(), activities, strAktDsn);
}

std::string Hierarchy::OBJ_GetParentOBJDsn(std::string_view strObjDsn) const {
    return parent_of(session(), objects, strObjDsn);
}

std::string Hierarchy::OBJ_GetRootOBJDsn(std::string_view strObjDsn) const {
    return root_of(session(), objects, strObjDsn);
}

std::string Hierarchy::PROJEKTE_GetParentProjekteDsn(std::string_view strProjekteDsn) const {
    return parent_of(session(), projects, strProjekteDsn);
}

std::string Hierarchy::PROJEKTE_GetRootProjekteDsn(std::string_view strProjekteDsn) const {
    return root_of(session(), projects, strProjekteDsn);
}

std::string Hierarchy::AD_GetParentAdDsn(std::string_view strAdDsn) const {
    return parent_of(session(), addresses, strAdDsn);
}

std::string Hierarchy::AD_GetRootAdDsn(std::string_view strAdDsn) const {
    return root_of(session(), addresses, strAdDsn);
}

}  // namespace cvdeveloper
