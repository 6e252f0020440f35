// The workloads with QSqlQuery: prepared once, forward only, fields by name, each operation in a
// transaction of its own.

#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtSql/QSqlError>
#include <QtSql/QSqlRecord>
#include <memory>
#include <stdexcept>

#include "common/peer.h"
#include "common/places.h"
#include "peers/qt_database.h"

namespace cvdeveloper::bench {

namespace {

using Row = QVector<QVariant>;

class Links {
  public:
    Links(const QSqlDatabase& database, const std::string& folder)
        : find_(prepared(database, "link")),
          insert_(prepared(database, "insert_link")),
          log_(folder) {}

    void add(const QString& record, const QString& feature) {
        find_.bindValue(0, record);
        find_.bindValue(1, feature);
        execute(find_);
        const bool found = find_.next();
        find_.finish();
        if (!found) {
            log_.empty_result(statement("link"));
            insert_.bindValue(0, qt(new_key()));
            insert_.bindValue(1, record);
            insert_.bindValue(2, feature);
            execute(insert_);
        }
    }

  private:
    QSqlQuery find_;
    QSqlQuery insert_;
    PeerLog log_;
};

class Creator {
  public:
    Creator(const QSqlDatabase& database, const std::string& folder)
        : database_(database),
          none_(prepared(database, "no_activity")),
          user_(prepared(database, "user")),
          insert_(prepared(database, "insert_activity")),
          number_(database),
          links_(database, folder),
          log_(folder) {}

    void create() {
        database_.transaction();
        execute(none_);
        none_.finish();
        log_.empty_result(statement("no_activity"));
        const QString key = qt(new_key());
        const QString code = number_.take();
        insert_.bindValue(0, key);
        insert_.bindValue(1, code);
        insert_.bindValue(2, QStringLiteral("Anruf"));
        insert_.bindValue(3, qt(standard_rights(user_field("Rechteschablonen").toStdString())));
        execute(insert_);
        QVector<QString> wanted;
        for (const char* column : {"STD_MKM1", "STD_MKM2", "STD_MKM3", "STD_MKM4", "STD_MKM5"}) {
            wanted.push_back(user_field(column));
        }
        for (const QString& feature : wanted) {
            if (!feature.isEmpty()) {
                links_.add(key, feature);
            }
        }
        database_.commit();
    }

  private:
    QString user_field(const char* column) {
        user_.bindValue(0, QStringLiteral("BE000000-0000-4000-8000-000000000001"));
        execute(user_);
        user_.next();
        const QString value = user_.value(column).toString();
        user_.finish();
        return value;
    }

    QSqlDatabase database_;
    QSqlQuery none_;
    QSqlQuery user_;
    QSqlQuery insert_;
    QtNumber number_;
    Links links_;
    PeerLog log_;
};

class Details {
  public:
    explicit Details(const QSqlDatabase& database)
        : database_(database),
          read_(prepared(database, "detail_value")),
          read_row_(prepared(database, "detail_row")),
          update_(prepared(database, "update_detail")) {}

    void get() {
        ask(read_);
        keep(read_.value(0).toString());
        read_.finish();
    }
    void set() {
        database_.transaction();
        ask(read_row_);
        const QString key = read_row_.value("DSN").toString();
        const int version = read_row_.value("STAMP").toInt();
        read_row_.finish();
        update_.bindValue(0, QStringLiteral("neu ") + QString::number(++number_));
        update_.bindValue(1, version + 1);
        update_.bindValue(2, key);
        update_.bindValue(3, version);
        execute(update_);
        database_.commit();
    }

  private:
    void ask(QSqlQuery& query) {
        query.bindValue(0, qt(places_.next_activity()));
        query.bindValue(1, qt(places_.next_field_kind()));
        execute(query);
        query.next();
    }

    QSqlDatabase database_;
    QSqlQuery read_;
    QSqlQuery read_row_;
    QSqlQuery update_;
    Places places_;
    int number_ = 0;
};

class Finder {
  public:
    explicit Finder(const QSqlDatabase& database) : query_(prepared(database, "find")) {}

    void find() {
        query_.bindValue(0, qt(places_.next_project()));
        execute(query_);
        while (query_.next()) {
            for (const char* field : found_fields) {
                keep(query_.value(field));
            }
        }
        query_.finish();
    }

  private:
    QSqlQuery query_;
    Places places_;
};

QVector<Row> all(QSqlQuery& query, const QString& parameter) {
    query.bindValue(0, parameter);
    execute(query);
    const int columns = query.record().count();
    QVector<Row> rows;
    while (query.next()) {
        Row row;
        row.reserve(columns);
        for (int i = 0; i < columns; ++i) {
            row.push_back(query.value(i));
        }
        rows.push_back(row);
    }
    query.finish();
    return rows;
}

class Copier {
  public:
    Copier(const QSqlDatabase& database, const std::string& folder)
        : database_(database),
          originals_(prepared(database, "activities_to_copy")),
          none_(prepared(database, "no_copy")),
          features_(prepared(database, "features_to_copy")),
          attachments_(prepared(database, "attachments_to_copy")),
          details_(prepared(database, "details_to_copy")),
          no_detail_(prepared(database, "no_detail")),
          insert_activity_(insert_into("AKT")),
          insert_detail_(insert_into("AKTDET")),
          project_column_(database.record("AKT").indexOf("Projekte_Dsn")),
          number_(database),
          links_(database, folder),
          log_(folder) {}

    void copy() {
        database_.transaction();
        QVector<Row> activities = all(originals_, qt(project_key(copied_project)));
        execute(none_);
        none_.finish();
        log_.empty_result(statement("no_copy"));
        const QString project = qt(new_key());
        for (Row& row : activities) {
            const QString original = row[0].toString();
            const QString copied = qt(new_key());
            row[0] = copied;
            row[1] = 0;
            row[2] = number_.take();
            row[project_column_] = project;
            for (const Row& feature : all(features_, original)) {
                links_.add(copied, feature[3].toString());
            }
            all(attachments_, original);
            copy_details(original, copied);
        }
        write(insert_activity_, activities);
        database_.commit();
    }

  private:
    void copy_details(const QString& original, const QString& copied) {
        QVector<Row> found = all(details_, original);
        execute(no_detail_);
        no_detail_.finish();
        log_.empty_result(statement("no_detail"));
        for (Row& row : found) {
            row[0] = qt(new_key());
            row[1] = 0;
            row[2] = copied;
        }
        write(insert_detail_, found);
    }
    QSqlQuery insert_into(const char* table) const {
        std::vector<std::string> names;
        const QSqlRecord record = database_.record(table);
        for (int i = 0; i < record.count(); ++i) {
            names.push_back(record.fieldName(i).toStdString());
        }
        QSqlQuery query(database_);
        if (!query.prepare(qt(insert_text(table, names)))) {
            fail(query.lastError().text());
        }
        return query;
    }
    static void write(QSqlQuery& insert, const QVector<Row>& rows) {
        for (const Row& row : rows) {
            for (int i = 0; i < row.size(); ++i) {
                insert.bindValue(i, row[i]);
            }
            execute(insert);
        }
    }

    QSqlDatabase database_;
    QSqlQuery originals_;
    QSqlQuery none_;
    QSqlQuery features_;
    QSqlQuery attachments_;
    QSqlQuery details_;
    QSqlQuery no_detail_;
    QSqlQuery insert_activity_;
    QSqlQuery insert_detail_;
    int project_column_;
    QtNumber number_;
    Links links_;
    PeerLog log_;
};

}  // namespace

Workload qt_query_workload(const Order& order) {
    QSqlDatabase database = open_qt_database(order);
    if (order.workload == "create_activity") {
        return {
            .run = [peer = std::make_shared<Creator>(database, order.folder)] { peer->create(); }};
    }
    if (order.workload == "get_detail") {
        return {.run = [peer = std::make_shared<Details>(database)] { peer->get(); }};
    }
    if (order.workload == "set_detail") {
        return {.run = [peer = std::make_shared<Details>(database)] { peer->set(); }};
    }
    if (order.workload == "add_features") {
        return {
            .run = [database, peer = std::make_shared<Links>(database, order.folder)]() mutable {
                database.transaction();
                const QString record = qt(new_key());
                for (int i = 0; i < features; ++i) {
                    peer->add(record, qt(field_kind_key(i)));
                }
                database.commit();
            }};
    }
    if (order.workload == "find_rows") {
        return {.run = [peer = std::make_shared<Finder>(database)] { peer->find(); }};
    }
    if (order.workload == "copy_project") {
        return {.run = [peer = std::make_shared<Copier>(database, order.folder)] { peer->copy(); }};
    }
    throw std::runtime_error("no workload " + order.workload);
}

}  // namespace cvdeveloper::bench
