#include "entities/families/kinds.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "cvdeveloper/data/user_interface_bridge.h"
#include "cvdeveloper/data/user_profile.h"
#include "cvdeveloper/details/detail_values.h"
#include "cvdeveloper/details/features.h"
#include "platform/text.h"

namespace cvdeveloper::families {

namespace {

constexpr Text by_key = "DSN";

// Names are inserted as they stand: a quote inside one breaks the statement.
std::string named(const Family& family, Text name) {
    return std::string(family.name_column) + " = '" + std::string(name) + "'";
}

std::string named_within(Session& session, const Family& family, Text owner, Text name) {
    return std::string(family.owner_column) + " = " + session.util().SqlUid(owner) + " AND " +
           named(family, name);
}

}  // namespace

RecordSet find(Session& session, const Family& family, Text where, Text order) {
    return TableOperations(session).Sql_Find(table_for(Kind::Find, family), where, order);
}

std::string find_key(Session& session, const Family& family, Text where, Text order) {
    const RecordSet rs =
        TableOperations(session).Sql_Find(table_for(Kind::FindDsn, family), where, order);
    return rs.at_end() ? std::string() : to_text(rs.value("DSN"));
}

RecordSet find_by_key(Session& session, const Family& family, Text key) {
    return TableOperations(session).Sql_FindByDSN(table_for(Kind::FindByDsn, family), key);
}

RecordSet find_by_code(Session& session, const Family& family, Text code) {
    return TableOperations(session).Sql_FindByKennung(table_for(Kind::FindByKennung, family), code);
}

std::string find_key_by_code(Session& session, const Family& family, Text code) {
    return TableOperations(session).Sql_FindDsnByKennung(table_for(Kind::FindDsnByKennung, family),
                                                         code);
}

bool remove(Session& session, const Family&, const RecordSet& rs) {
    RecordSet changed = rs;
    return TableOperations(session).SQL_Delete(changed);
}

bool remove_by_key(Session& session, const Family& family, Text key) {
    return TableOperations(session).SQL_DeleteWhere(table_for(Kind::DeleteByDsn, family),
                                                    "DSN=" + session.util().SqlUid(key)) > 0;
}

void update(Session& session, const Family&, RecordSet& rs) {
    Gateway(session).CV_UpdateRecordset(rs);
}

void show(Session& session, const Family& family, Text where) {
    std::string condition(where);
    if (!family.form_condition.empty() && !condition.empty()) {
        condition = std::string(family.form_condition) + condition + ")";
    }
    const UserInterfaceBridge panes(session);
    panes.Pane_Find(family.form, "1=2");  // opens the form empty before it is filled
    panes.Pane_Find(family.form, condition);
    panes.Pane_Show(family.form);
}

void show_by_key(Session& session, const Family& family, Text key) {
    UserInterfaceBridge(session).Pane_FindDSN(family.form, key);
}

void add_features(Session& session, const Family& family, Text key, Text features) {
    Features(session).Mkm_Add(table_for(Kind::MerkmalAdd, family), key, features);
}

void remove_features(Session& session, const Family& family, Text key, Text features) {
    Features(session).Mkm_Del(table_for(Kind::MerkmalDel, family), key, features);
}

void switch_feature(Session& session, const Family& family, Text key, Text from, Text to) {
    Features(session).Mkm_Switch(table_for(Kind::MerkmalSwitch, family), key, from, to);
}

bool has_feature(Session& session, const Family& family, Text key, Text feature) {
    return Features(session).Mkm_Exists(table_for(Kind::MerkmalContains, family), key, feature);
}

std::string standard_features(Session& session, const Family&) {
    return UserProfile(session).BEN_MerkmalDsnCommaList();
}

std::string get_features(Session& session, const Family& family, Text key) {
    return Features(session).Mkm_Get(table_for(Kind::MerkmalGet, family), key);
}

void copy_features(Session& session, const Family& family, Text source, Text destination) {
    Features(session).Mkm_Copy(table_for(Kind::MerkmalCopy, family), source, destination);
}

void remove_detail(Session& session, const Family& family, Text key, Text field_kind) {
    DetailValues(session).Det_Delete(table_for(Kind::DetailDelete, family), key, field_kind);
}

void set_detail(Session& session, const Family& family, Text key, Text field_kind, Text value,
                Text acl, Text link) {
    DetailValues(session).Det_SetValue(table_for(Kind::DetailSet, family), key, field_kind, value,
                                       acl, link);
}

std::string get_detail(Session& session, const Family& family, Text key, Text field_kind) {
    return DetailValues(session).Det_GetValue(table_for(Kind::DetailGet, family), key, field_kind);
}

void set_option(Session& session, const Family& family, Text key, Text field_kind, Text option,
                Text acl) {
    DetailValues(session).Det_SetOptionDsn(table_for(Kind::DetailSetOption, family), key,
                                           field_kind, option, acl);
}

std::string get_option(Session& session, const Family& family, Text key, Text field_kind) {
    return DetailValues(session).Det_GetOptionDsn(table_for(Kind::DetailGetOption, family), key,
                                                  field_kind);
}

std::int32_t copy_details(Session& session, const Family& family, Text source, Text destination) {
    return DetailValues(session).Det_Copy(table_for(Kind::DetailCopy, family), source, destination);
}

RecordSet find_by_name(Session& session, const Family& family, Text name) {
    return TableOperations(session).Sql_Find(table_for(Kind::FindByName, family),
                                             named(family, name), by_key);
}

std::string find_key_by_name(Session& session, const Family& family, Text name) {
    return TableOperations(session).Sql_GetDSN(table_for(Kind::FindDsnByName, family),
                                               named(family, name), by_key);
}

RecordSet find_by_name_within(Session& session, const Family& family, Text owner, Text name) {
    return TableOperations(session).Sql_Find(table_for(Kind::FindByNameWithin, family),
                                             named_within(session, family, owner, name), by_key);
}

std::string find_key_by_name_within(Session& session, const Family& family, Text owner, Text name) {
    return TableOperations(session).Sql_GetDSN(table_for(Kind::FindDsnByNameWithin, family),
                                               named_within(session, family, owner, name), by_key);
}

std::string name_of_key(Session& session, const Family& family, Text key) {
    const Text column =
        family.name_column_by_key.empty() ? family.name_column : family.name_column_by_key;
    return TableOperations(session).Sql_GetField(table_for(Kind::NameByDsn, family), key, column);
}

// Each name takes the place of the one before; callers have come to rely on it.
std::string last_name(Session& session, const Family& family, Text keys) {
    std::string list(keys);
    std::string name;
    while (!list.empty()) {
        name = name_of_key(session, family, take_first(list, ","));
    }
    return name;
}

std::string names(Session& session, const Family& family, Text keys) {
    std::string list(keys);
    std::string joined;
    while (!list.empty()) {
        joined.append(name_of_key(session, family, take_first(list, ","))).append(",");
    }
    return joined.substr(0, joined.empty() ? 0 : joined.size() - 1);
}

}  // namespace cvdeveloper::families
