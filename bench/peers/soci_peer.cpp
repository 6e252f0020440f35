// The workloads as a user of SOCI writes them: prepared statements with use and into, results of
// "SELECT *" as soci::row, each operation in a soci::transaction of its own.
//   soci_peer soci WORKLOAD FOLDER (full|off)

#include <soci/soci.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "common/peer.h"
#include "common/places.h"
#include "common/workload.h"
#include "host/database/sqlite/functions.h"

namespace {

using namespace cvdeveloper::bench;
using soci::into;
using soci::use;

constexpr char user_key[] = "BE000000-0000-4000-8000-000000000001";

std::unique_ptr<soci::session> open_session(const Order& order) {
    auto sql = std::make_unique<soci::session>(
        soci::sqlite3,
        "db=" + order.folder + "/corvanta.db synchronous=" + (order.full_sync ? "full" : "off"));
    auto* const backend = static_cast<soci::sqlite3_session_backend*>(sql->get_backend());
    cvdeveloper::standalone::sqlite::install_functions(
        reinterpret_cast<::sqlite3*>(backend->conn_));
    *sql << "PRAGMA cache_size=-16000";
    *sql << "PRAGMA temp_store=MEMORY";
    return sql;
}

// A prepared "SELECT *" with one parameter or two.
class Rows {
  public:
    Rows(soci::session& sql, const std::string& name)
        : statement_((sql.prepare << statement(name), into(row_))) {}
    Rows(soci::session& sql, const std::string& name, std::string& first)
        : statement_((sql.prepare << statement(name), use(first), into(row_))) {}
    Rows(soci::session& sql, const std::string& name, std::string& first, std::string& second)
        : statement_((sql.prepare << statement(name), use(first), use(second), into(row_))) {}

    bool execute() { return statement_.execute(true); }
    bool fetch() { return statement_.fetch(); }
    soci::row& row() { return row_; }

  private:
    soci::row row_;
    soci::statement statement_;
};

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

class Links {
  public:
    Links(soci::session& sql, const std::string& folder)
        : find_(sql, "link", record_, feature_),
          insert_(
              (sql.prepare << statement("insert_link"), use(key_), use(record_), use(feature_))),
          log_(folder) {}

    void add(const std::string& record, const std::string& feature) {
        record_ = record;
        feature_ = feature;
        if (!find_.execute()) {
            log_.empty_result(statement("link"));
            key_ = new_key();
            insert_.execute(true);
        }
    }

  private:
    std::string key_;
    std::string record_;
    std::string feature_;
    Rows find_;
    soci::statement insert_;
    PeerLog log_;
};

class Number {
  public:
    explicit Number(soci::session& sql)
        : ask_((sql.prepare << statement("number"), into(shown_, shown_null_))),
          take_((sql.prepare << statement("take_number"), into(prefix_), into(number_))) {}

    std::string take() {
        ask_.execute(true);
        take_.execute(true);
        std::string key = human_key(prefix_, number_);
        take_.fetch();
        return key;
    }

  private:
    std::string shown_;
    soci::indicator shown_null_ = soci::i_ok;
    std::string prefix_;
    long long number_ = 0;
    soci::statement ask_;
    soci::statement take_;
};

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

// A value that outlives its row, in the form in which it is bound again.
struct Field {
    soci::indicator state = soci::i_null;
    soci::data_type type = soci::dt_string;
    std::string text;
    double number = 0;
    int integer = 0;
    std::tm date{};
};

// An insert of all columns of a table, from the fields of a row that was read.
class Insert {
  public:
    Insert(soci::session& sql, const std::string& table, const soci::row& like)
        : fields_(like.size()), statement_(sql) {
        std::vector<std::string> names;
        for (std::size_t i = 0; i < like.size(); ++i) {
            names.push_back(like.get_properties(i).get_name());
            fields_[i].type = like.get_properties(i).get_data_type();
            exchange(fields_[i]);
        }
        statement_.alloc();
        statement_.prepare(insert_text(table, names));
        statement_.define_and_bind();
    }

    std::vector<Field>& fields() { return fields_; }
    void execute() { statement_.execute(true); }

  private:
    void exchange(Field& field) {
        switch (field.type) {
            case soci::dt_string:
                statement_.exchange(use(field.text, field.state));
                break;
            case soci::dt_double:
                statement_.exchange(use(field.number, field.state));
                break;
            case soci::dt_date:
                statement_.exchange(use(field.date, field.state));
                break;
            default:
                statement_.exchange(use(field.integer, field.state));
                break;
        }
    }

    std::vector<Field> fields_;
    soci::statement statement_;
};

std::vector<Field> fields_of(const soci::row& row) {
    std::vector<Field> fields(row.size());
    for (std::size_t i = 0; i < row.size(); ++i) {
        Field& field = fields[i];
        field.state = row.get_indicator(i);
        field.type = row.get_properties(i).get_data_type();
        if (field.state == soci::i_null) {
            continue;
        }
        switch (field.type) {
            case soci::dt_string:
                field.text = row.get<std::string>(i);
                break;
            case soci::dt_double:
                field.number = row.get<double>(i);
                break;
            case soci::dt_date:
                field.date = row.get<std::tm>(i);
                break;
            default:
                field.integer = row.get<int>(i);
                break;
        }
    }
    return fields;
}

class Copier {
  public:
    Copier(soci::session& sql, const std::string& folder)
        : sql_(sql),
          originals_(sql, "activities_to_copy", project_),
          none_(sql, "no_copy"),
          features_(sql, "features_to_copy", original_),
          attachments_(sql, "attachments_to_copy", original_),
          details_(sql, "details_to_copy", original_),
          no_detail_(sql, "no_detail"),
          number_(sql),
          links_(sql, folder),
          log_(folder) {}

    void copy() {
        soci::transaction transaction(sql_);
        const std::vector<std::vector<Field>> activities = all(originals_);
        none_.execute();
        log_.empty_result(statement("no_copy"));
        const std::string project = new_key();
        std::vector<std::vector<Field>> copies;
        for (const std::vector<Field>& activity : activities) {
            std::vector<Field>& copy = copies.emplace_back(activity);
            original_ = activity[0].text;
            copy[0].text = new_key();
            copy[1].integer = 0;
            copy[2].text = number_.take();
            copy[project_column()].text = project;
            copy_features(copy[0].text);
            attachments_.execute();
            copy_details(copy[0].text);
        }
        write(insert_activity_, "AKT", originals_.row(), copies);
        transaction.commit();
    }

  private:
    static std::vector<std::vector<Field>> all(Rows& rows) {
        std::vector<std::vector<Field>> found;
        for (bool more = rows.execute(); more; more = rows.fetch()) {
            found.push_back(fields_of(rows.row()));
        }
        return found;
    }
    void write(std::optional<Insert>& insert, const std::string& table, const soci::row& like,
               const std::vector<std::vector<Field>>& rows) {
        if (!insert) {
            insert.emplace(sql_, table, like);
        }
        for (const std::vector<Field>& row : rows) {
            for (std::size_t i = 0; i < row.size(); ++i) {
                insert->fields()[i] = row[i];
            }
            insert->execute();
        }
    }
    std::size_t project_column() const {
        const soci::row& row = const_cast<Rows&>(originals_).row();
        std::size_t i = 0;
        while (row.get_properties(i).get_name() != "Projekte_Dsn") {
            ++i;
        }
        return i;
    }
    void copy_features(const std::string& copy) {
        std::vector<std::string> found;
        for (bool more = features_.execute(); more; more = features_.fetch()) {
            found.push_back(features_.row().get<std::string>("MKM_DSN"));
        }
        for (const std::string& feature : found) {
            links_.add(copy, feature);
        }
    }
    void copy_details(const std::string& copy) {
        std::vector<std::vector<Field>> found = all(details_);
        no_detail_.execute();
        log_.empty_result(statement("no_detail"));
        for (std::vector<Field>& detail : found) {
            detail[0].text = new_key();
            detail[1].integer = 0;
            detail[2].text = copy;
        }
        write(insert_detail_, "AKTDET", details_.row(), found);
    }

    soci::session& sql_;
    std::string project_ = project_key(copied_project);
    std::string original_;
    Rows originals_;
    Rows none_;
    Rows features_;
    Rows attachments_;
    Rows details_;
    Rows no_detail_;
    std::optional<Insert> insert_activity_;
    std::optional<Insert> insert_detail_;
    Number number_;
    Links links_;
    PeerLog log_;
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
        return {
            .run = [sql, peer = std::make_shared<Copier>(*sql, order.folder)] { peer->copy(); }};
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
