#include "peers/qt_database.h"

#include <QtCore/QVariant>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <stdexcept>

#include "common/peer.h"
#include "host/database/sqlite/functions.h"

namespace cvdeveloper::bench {

void fail(const QString& error) {
    throw std::runtime_error(error.toStdString());
}

QSqlDatabase open_qt_database(const Order& order) {
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
    database.setDatabaseName(qt(order.folder + "/corvanta.db"));
    if (!database.open()) {
        fail(database.lastError().text());
    }
    const QVariant handle = database.driver()->handle();
    standalone::sqlite::install_functions(*static_cast<sqlite3* const*>(handle.data()));
    QSqlQuery settings(database);
    settings.exec("PRAGMA cache_size=-16000");
    settings.exec("PRAGMA temp_store=MEMORY");
    settings.exec(order.full_sync ? "PRAGMA synchronous=FULL" : "PRAGMA synchronous=OFF");
    return database;
}

QSqlQuery prepared(const QSqlDatabase& database, const std::string& name) {
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.prepare(qt(statement(name)))) {
        fail(query.lastError().text());
    }
    return query;
}

void execute(QSqlQuery& query) {
    if (!query.exec()) {
        fail(query.lastError().text());
    }
}

QtNumber::QtNumber(const QSqlDatabase& database)
    : ask_(prepared(database, "number")), take_(prepared(database, "take_number")) {}

QString QtNumber::take() {
    execute(ask_);
    ask_.next();
    ask_.finish();
    execute(take_);
    take_.next();
    const std::string key =
        human_key(take_.value(0).toString().toStdString(), take_.value(1).toLongLong());
    take_.finish();
    return qt(key);
}

}  // namespace cvdeveloper::bench
