#pragma once

#include <sqlite3.h>

#include <QString>
#include <QStringList>
#include <memory>

#include "store/Schema.h"
#include "store/dialect/Plan.h"

// The tables of a schema in memory, in an engine that knows no more than what emitted SQL relies on.
class DialectStore {
public:
    explicit DialectStore(const store::Schema& schema);

    // What the engine has against a compiled text; empty when nothing.
    QString Refusal(const store::dialect::Plan& plan);
    // Runs it; rows as texts of the engine, joined by "|". An error is its message alone.
    QStringList Run(const store::dialect::Query& query);
    QStringList RunSql(const QByteArray& sql, const QList<store::dialect::BoundValue>& values = {});

private:
    std::unique_ptr<sqlite3, int (*)(sqlite3*)> database_;
};

QByteArray SqlOf(const store::dialect::Plan& plan);
