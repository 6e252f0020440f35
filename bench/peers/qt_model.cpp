// The workloads with QSqlTableModel: a filter for a condition, records for rows, changes written by
// submitAll, each operation in a transaction of its own. A table model knows one table, so what the
// library joins is filtered in the details' table alone.

#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtSql/QSqlError>
#include <QtSql/QSqlField>
#include <QtSql/QSqlRecord>
#include <memory>
#include <stdexcept>

#include "common/peer.h"
#include "common/places.h"
#include "peers/qt_database.h"

namespace cvdeveloper::bench {

namespace {

// The rows of a table that match a condition.
class Table {
  public:
    Table(const QSqlDatabase& database, const char* name) : model_(nullptr, database) {
        model_.setTable(name);
        model_.setEditStrategy(QSqlTableModel::OnManualSubmit);
    }

    // How many there are.
    int select(const QString& condition) {
        model_.setFilter(condition);
        if (!model_.select()) {
            fail(model_.lastError().text());
        }
        while (model_.canFetchMore()) {
            model_.fetchMore();
        }
        return model_.rowCount();
    }
    [[nodiscard]] QSqlRecord record(int row) const { return model_.record(row); }
    [[nodiscard]] QSqlRecord new_record() const { return model_.record(); }
    void add(const QSqlRecord& record) {
        if (!model_.insertRecord(-1, record)) {
            fail(model_.lastError().text());
        }
    }
    void change(int row, const char* column, const QVariant& value) {
        model_.setData(model_.index(row, model_.fieldIndex(column)), value);
    }
    void save() {
        if (!model_.submitAll()) {
            fail(model_.lastError().text());
        }
    }

  private:
    QSqlTableModel model_;
};

// Only columns that are set are written.
QSqlRecord without_columns(QSqlRecord record) {
    for (int i = 0; i < record.count(); ++i) {
        record.setGenerated(i, false);
    }
    return record;
}

void set(QSqlRecord& record, const char* column, const QVariant& value) {
    record.setValue(column, value);
    record.setGenerated(column, true);
}

QString equals(const char* column, const QString& value) {
    return QStringLiteral("%1='%2'").arg(column, value);
}

class Links {
  public:
    Links(const QSqlDatabase& database, const std::string& folder)
        : table_(database, "AKTMKM"), log_(folder) {}

    void add(const QString& record, const QString& feature) {
        if (table_.select(equals("Link_DSN", record) + " AND " + equals("MKM_DSN", feature)) > 0) {
            return;
        }
        log_.empty_result(statement("link"));
        QSqlRecord link = without_columns(table_.new_record());
        set(link, "DSN", qt(new_key()));
        set(link, "Link_DSN", record);
        set(link, "MKM_DSN", feature);
        table_.add(link);
        table_.save();
    }

  private:
    Table table_;
    PeerLog log_;
};

class Creator {
  public:
    Creator(const QSqlDatabase& database, const std::string& folder)
        : database_(database),
          activities_(database, "AKT"),
          users_(database, "Benutzer"),
          number_(database),
          links_(database, folder),
          log_(folder) {}

    void create() {
        database_.transaction();
        activities_.select("1=2");
        log_.empty_result(statement("no_activity"));
        const QString key = qt(new_key());
        QSqlRecord row = without_columns(activities_.new_record());
        for (const char* column :
             {"Art_Dsn", "Datum", "Datum_Bis", "Vorlage", "Alarm", "Loeschdatum", "Emsk_Dsn",
              "AD_Dsn", "AD_B_Dsn", "OBJ_Dsn", "ANF_Dsn", "Projekte_Dsn", "Akten_Dsn",
              "Verträge_Dsn", "Details_Dsn", "Akt_Dsn"}) {
            set(row, column, QVariant());
        }
        set(row, "DSN", key);
        set(row, "Kennung", number_.take());
        set(row, "Priorität", 1);
        set(row, "FArchiv", 0);
        set(row, "Subject", QStringLiteral("Anruf"));
        set(row, "Notiz", QString(""));
        set(row, "Erledigt", 0);
        set(row, "Stichwort1", QString(""));
        set(row, "Stichwort2", QString(""));
        set(row, "ACL", qt(standard_rights(user_field("Rechteschablonen").toStdString())));
        activities_.add(row);
        activities_.save();
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
        users_.select("DSN='BE000000-0000-4000-8000-000000000001'");
        return users_.record(0).value(column).toString();
    }

    QSqlDatabase database_;
    Table activities_;
    Table users_;
    QtNumber number_;
    Links links_;
    PeerLog log_;
};

class Details {
  public:
    explicit Details(const QSqlDatabase& database)
        : database_(database), table_(database, "AKTDET") {}

    void get() {
        find();
        keep(table_.record(0).value("Eingabe").toString());
    }
    void set() {
        database_.transaction();
        find();
        const int version = table_.record(0).value("STAMP").toInt();
        table_.change(0, "Eingabe", QStringLiteral("neu ") + QString::number(++number_));
        table_.change(0, "STAMP", version + 1);
        table_.save();
        database_.commit();
    }

  private:
    void find() {
        const QString record = qt(places_.next_activity());
        const QString kind = qt(places_.next_field_kind());
        table_.select(equals("AKT_DSN", record) + " AND " + equals("FldArt_DSN", kind));
    }

    QSqlDatabase database_;
    Table table_;
    Places places_;
    int number_ = 0;
};

class Finder {
  public:
    explicit Finder(const QSqlDatabase& database) : table_(database, "AKT") {}

    void find() {
        const int count = table_.select(equals("Projekte_Dsn", qt(places_.next_project())));
        for (int i = 0; i < count; ++i) {
            const QSqlRecord record = table_.record(i);
            for (const char* field : found_fields) {
                keep(record.value(field));
            }
        }
    }

  private:
    Table table_;
    Places places_;
};

class Copier {
  public:
    Copier(const QSqlDatabase& database, const std::string& folder)
        : database_(database),
          originals_(database, "AKT"),
          copies_(database, "AKT"),
          features_(database, "AKTMKM"),
          attachments_(database, "Blob"),
          details_(database, "AKTDET"),
          new_details_(database, "AKTDET"),
          number_(database),
          links_(database, folder),
          log_(folder) {}

    void copy() {
        database_.transaction();
        const int count =
            originals_.select(equals("Projekte_Dsn", qt(project_key(copied_project))));
        copies_.select("1=2");
        log_.empty_result(statement("no_copy"));
        const QString project = qt(new_key());
        for (int i = 0; i < count; ++i) {
            QSqlRecord row = originals_.record(i);
            const QString original = row.value("DSN").toString();
            const QString copied = qt(new_key());
            write_all(row);
            row.setValue("DSN", copied);
            row.setValue("STAMP", 0);
            row.setValue("Kennung", number_.take());
            row.setValue("Projekte_Dsn", project);
            copies_.add(row);
            const int links = features_.select(equals("Link_DSN", original));
            for (int link = 0; link < links; ++link) {
                links_.add(copied, features_.record(link).value("MKM_DSN").toString());
            }
            attachments_.select(equals("uidLINK_DSN", original));
            copy_details(original, copied);
        }
        copies_.save();
        database_.commit();
    }

  private:
    static void write_all(QSqlRecord& record) {
        for (int i = 0; i < record.count(); ++i) {
            record.setGenerated(i, true);
        }
    }
    void copy_details(const QString& original, const QString& copied) {
        const int count = details_.select(equals("AKT_DSN", original));
        new_details_.select("1=2");
        log_.empty_result(statement("no_detail"));
        for (int i = 0; i < count; ++i) {
            QSqlRecord row = details_.record(i);
            write_all(row);
            row.setValue("DSN", qt(new_key()));
            row.setValue("STAMP", 0);
            row.setValue("AKT_DSN", copied);
            new_details_.add(row);
        }
        new_details_.save();
    }

    QSqlDatabase database_;
    Table originals_;
    Table copies_;
    Table features_;
    Table attachments_;
    Table details_;
    Table new_details_;
    QtNumber number_;
    Links links_;
    PeerLog log_;
};

}  // namespace

Workload qt_model_workload(const Order& order) {
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
