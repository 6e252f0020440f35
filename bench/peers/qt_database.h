#pragma once

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlTableModel>

#include <string>

#include "common/workload.h"

namespace cvdeveloper::bench {

QSqlDatabase open_qt_database(const Order& order);

// A statement of statements.sql, prepared.
QSqlQuery prepared(const QSqlDatabase& database, const std::string& name);
void execute(QSqlQuery& query);
[[noreturn]] void fail(const QString& error);

// The next human key of an activity, taken by QSqlQuery: a table model cannot.
class QtNumber {
  public:
    explicit QtNumber(const QSqlDatabase& database);

    QString take();

  private:
    QSqlQuery ask_;
    QSqlQuery take_;
};

inline QString qt(const std::string& text) {
    return QString::fromStdString(text);
}

Workload qt_query_workload(const Order& order);
Workload qt_model_workload(const Order& order);

}  // namespace cvdeveloper::bench
