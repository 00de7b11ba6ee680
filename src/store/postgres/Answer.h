#pragma once

#include <libpq-fe.h>

#include <memory>

#include "store/RowBlock.h"

namespace store::postgres {

// What the server answered to one statement.
class Answer {
public:
    Answer() = default;
    explicit Answer(PGresult* result) : result_(result) {}

    explicit operator bool() const { return result_ != nullptr; }
    const PGresult* Get() const { return result_.get(); }

    int Rows() const { return PQntuples(Get()); }
    qint64 Affected() const;
    bool IsNull(int row, int column) const { return PQgetisnull(Get(), row, column) != 0; }
    QByteArrayView At(int row, int column) const {
        return {PQgetvalue(Get(), row, column), qsizetype{PQgetlength(Get(), row, column)}};
    }
    QString Text(int row, int column) const { return QString::fromUtf8(At(row, column)); }
    qint64 Integer(int row, int column) const;
    bool IsTrue(int row, int column) const { return At(row, column) == "t"; }
    // The cells of a row from a column on, added to a block of so many columns.
    void AppendRow(RowBlock& rows, int row, int first) const;

private:
    struct Clear {
        void operator()(PGresult* result) const { PQclear(result); }
    };
    std::unique_ptr<PGresult, Clear> result_;
};

}  // namespace store::postgres
