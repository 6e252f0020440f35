#pragma once

#include <soci/soci.h>

#include <memory>
#include <string>

#include "common/peer.h"
#include "common/workload.h"

// What the workloads with SOCI share.
namespace cvdeveloper::bench {

using soci::into;
using soci::use;

std::unique_ptr<soci::session> open_session(const Order& order);

// A prepared "SELECT *" with up to two parameters.
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

// Copies a project's activities with their features and details.
Workload soci_copy(const std::shared_ptr<soci::session>& sql, const std::string& folder);

}  // namespace cvdeveloper::bench
