#include "bench/QtSqlStore.h"

#include <sqlite3.h>

#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>
#include <stdexcept>

#include "store/sqlite/TextRules.h"

using namespace Qt::StringLiterals;

namespace bench {

QtSqlStore::QtSqlStore(const QString& path) : connection_(u"bench"_s) {
    auto database = QSqlDatabase::addDatabase(u"QSQLITE"_s, connection_);
    database.setDatabaseName(path);
    if (!database.open()) throw std::runtime_error(database.lastError().text().toStdString());
    store::sqlite::RegisterTextRules(*static_cast<sqlite3* const*>(database.driver()->handle().constData()));
    QSqlQuery(database).exec(u"PRAGMA cache_size = -16000"_s);
}

QtSqlStore::~QtSqlStore() {
    QSqlDatabase::removeDatabase(connection_);
}

QSqlDatabase QtSqlStore::Database() const {
    return QSqlDatabase::database(connection_);
}

}  // namespace bench
