#pragma once

#include "cvdeveloper/data/session.h"
#include "entities/families/rows.h"

// The operation kinds: one implementation for all families that offer it.
namespace cvdeveloper::families {

using Text = std::string_view;

RecordSet find(Session& session, const Family& family, Text where, Text order);
std::string find_key(Session& session, const Family& family, Text where, Text order);
RecordSet find_by_key(Session& session, const Family& family, Text key);
RecordSet find_by_code(Session& session, const Family& family, Text code);
std::string find_key_by_code(Session& session, const Family& family, Text code);

bool remove(Session& session, const Family& family, const RecordSet& rs);
bool remove_by_key(Session& session, const Family& family, Text key);
void update(Session& session, const Family& family, RecordSet& rs);

void show(Session& session, const Family& family, Text where);
void show_by_key(Session& session, const Family& family, Text key);

void add_features(Session& session, const Family& family, Text key, Text features);
void remove_features(Session& session, const Family& family, Text key, Text features);
void switch_feature(Session& session, const Family& family, Text key, Text from, Text to);
bool has_feature(Session& session, const Family& family, Text key, Text feature);
std::string standard_features(Session& session, const Family& family);
std::string get_features(Session& session, const Family& family, Text key);
void copy_features(Session& session, const Family& family, Text source, Text destination);

void remove_detail(Session& session, const Family& family, Text key, Text field_kind);
void set_detail(Session& session, const Family& family, Text key, Text field_kind, Text value,
                Text acl, Text link);
std::string get_detail(Session& session, const Family& family, Text key, Text field_kind);
void set_option(Session& session, const Family& family, Text key, Text field_kind, Text option,
                Text acl);
std::string get_option(Session& session, const Family& family, Text key, Text field_kind);
std::int32_t copy_details(Session& session, const Family& family, Text source, Text destination);

RecordSet find_by_name(Session& session, const Family& family, Text name);
std::string find_key_by_name(Session& session, const Family& family, Text name);
RecordSet find_by_name_within(Session& session, const Family& family, Text owner, Text name);
std::string find_key_by_name_within(Session& session, const Family& family, Text owner, Text name);
std::string name_of_key(Session& session, const Family& family, Text key);
std::string last_name(Session& session, const Family& family, Text keys);
std::string names(Session& session, const Family& family, Text keys);

}  // namespace cvdeveloper::families
