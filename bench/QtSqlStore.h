#pragma once

#include <QSqlDatabase>
#include <QString>

namespace bench {

// A store's file opened through Qt's own SQL module, with the same text rules and cache.
class QtSqlStore {
public:
    explicit QtSqlStore(const QString& path);
    QtSqlStore(const QtSqlStore&) = delete;
    QtSqlStore& operator=(const QtSqlStore&) = delete;
    ~QtSqlStore();

    QSqlDatabase Database() const;

private:
    QString connection_;
};

}  // namespace bench
