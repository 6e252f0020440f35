// The workloads as a user of SOCI writes them: prepared statements with use and into, results of
// "SELECT *" as soci::row, each operation in a soci::transaction of its own.
//   soci_peer soci WORKLOAD FOLDER (full|off)

#include <iostream>
#include <vector>

#include "common/places.h"
#include "peers/soci_database.h"

namespace {

using namespace cvdeveloper::bench;

constexpr char user_key[] = "BE000000-0000-4000-8000-000000000001";

std::string text(const soci::row& row, const std::string& name) {
    return row.get_indicator(name) == soci::i_null ? std::string() : row.get<std::string>(name);
}

// A field by name as what it is.
void keep_field(const soci::row& row, const std::string& name) {
    if (row.get_indicator(name) == soci::i_null) {
        return;
    }
    switch (row.get_properties(name).get_data_type()) {
        case soci::dt_string:
            keep(row.get<std::string>(name));
            break;
        case soci::dt_double:
            keep(row.get<double>(name));
            break;
        case soci::dt_date:
            keep(row.get<std::tm>(name));
            break;
        default:
            keep(row.get<int>(name));
            break;
    }
}

class Creator {
  public:
    Creator(soci::session& sql, const std::string& folder)
        : sql_(sql),
          none_(sql, "no_activity"),
          user_(sql, "user", user_key_),
          insert_((sql.prepare << statement("insert_activity"), use(key_), use(code_),
                   use(subject_), use(rights_))),
          number_(sql),
          links_(sql, folder),
          log_(folder) {}

    void create() {
        soci::transaction transaction(sql_);
        none_.execute();
        log_.empty_result(statement("no_activity"));
        key_ = new_key();
        code_ = number_.take();
        user_.execute();
        rights_ = standard_rights(text(user_.row(), "Rechteschablonen"));
        insert_.execute(true);
        std::vector<std::string> wanted;
        for (const char* column : {"STD_MKM1", "STD_MKM2", "STD_MKM3", "STD_MKM4", "STD_MKM5"}) {
            user_.execute();
            wanted.push_back(text(user_.row(), column));
        }
        for (const std::string& feature : wanted) {
            if (!feature.empty()) {
                links_.add(key_, feature);
            }
        }
        transaction.commit();
    }

  private:
    soci::session& sql_;
    std::string user_key_ = user_key;
    std::string key_;
    std::string code_;
    std::string subject_ = "Anruf";
    std::string rights_;
    Rows none_;
    Rows user_;
    soci::statement insert_;
    Number number_;
    Links links_;
    PeerLog log_;
};

class Details {
  public:
    explicit Details(soci::session& sql)
        : sql_(sql),
          read_((sql.prepare << statement("detail_value"), use(record_), use(kind_), into(value_))),
          read_row_(sql, "detail_row", record_, kind_),
          update_((sql.prepare << statement("update_detail"), use(value_), use(next_), use(key_),
                   use(version_))) {}

    void get() {
        find_place();
        read_.execute(true);
        keep(value_);
    }
    void set() {
        soci::transaction transaction(sql_);
        find_place();
        read_row_.execute();
        key_ = read_row_.row().get<std::string>("DSN");
        version_ = read_row_.row().get<int>("STAMP");
        next_ = version_ + 1;
        value_ = "neu " + std::to_string(++number_);
        update_.execute(true);
        transaction.commit();
    }

  private:
    void find_place() {
        record_ = places_.next_activity();
        kind_ = places_.next_field_kind();
    }

    soci::session& sql_;
    Places places_;
    int number_ = 0;
    std::string record_;
    std::string kind_;
    std::string value_;
    std::string key_;
    int version_ = 0;
    int next_ = 0;
    soci::statement read_;
    Rows read_row_;
    soci::statement update_;
};

class Finder {
  public:
    explicit Finder(soci::session& sql) : rows_(sql, "find", project_) {}

    void find() {
        project_ = places_.next_project();
        for (bool found = rows_.execute(); found; found = rows_.fetch()) {
            for (const char* field : found_fields) {
                keep_field(rows_.row(), field);
            }
        }
    }

  private:
    Places places_;
    std::string project_;
    Rows rows_;
};

Workload workload_of(const Order& order) {
    const std::shared_ptr<soci::session> sql = open_session(order);
    if (order.workload == "create_activity") {
        return {
            .run = [sql, peer = std::make_shared<Creator>(*sql, order.folder)] { peer->create(); }};
    }
    if (order.workload == "get_detail") {
        return {.run = [sql, peer = std::make_shared<Details>(*sql)] { peer->get(); }};
    }
    if (order.workload == "set_detail") {
        return {.run = [sql, peer = std::make_shared<Details>(*sql)] { peer->set(); }};
    }
    if (order.workload == "add_features") {
        return {.run = [sql, peer = std::make_shared<Links>(*sql, order.folder)] {
            soci::transaction transaction(*sql);
            const std::string record = new_key();
            for (int i = 0; i < features; ++i) {
                peer->add(record, field_kind_key(i));
            }
            transaction.commit();
        }};
    }
    if (order.workload == "find_rows") {
        return {.run = [sql, peer = std::make_shared<Finder>(*sql)] { peer->find(); }};
    }
    if (order.workload == "copy_project") {
        return soci_copy(sql, order.folder);
    }
    throw std::runtime_error("no workload " + order.workload);
}

}  // namespace

int main(int count, char** words) {
    try {
        if (count != 5) {
            std::cerr << "usage: see the top of soci_peer.cpp\n";
            return 2;
        }
        serve(workload_of({.side = words[1],
                           .workload = words[2],
                           .folder = words[3],
                           .full_sync = std::string(words[4]) == "full"}));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
