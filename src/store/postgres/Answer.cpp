#include "store/postgres/Answer.h"

#include <charconv>

namespace store::postgres {

namespace {

using Cell = RowBlock::Cell;

// As the server's catalogue numbers its types.
constexpr Oid Int8 = 20, Int4 = 23, Float8 = 701, Numeric = 1700;

template <typename Number>
bool Read(QByteArrayView text, Number& number) {
    return std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc{};
}

// What is beyond 64 bits goes on as a double.
void SetNumber(Cell& cell, QByteArrayView text, bool isReal) {
    if (!isReal && Read(text, cell.integer)) {
        cell.kind = Cell::Kind::Integer;
    } else {
        cell.kind = Cell::Kind::Real;
        cell.real = 0;
        Read(text, cell.real);
    }
}

}  // namespace

qint64 Answer::Affected() const {
    qint64 rows = 0;
    Read(PQcmdTuples(const_cast<PGresult*>(Get())), rows);
    return rows;
}

qint64 Answer::Integer(int row, int column) const {
    qint64 number = 0;
    Read(At(row, column), number);
    return number;
}

void Answer::AppendRow(RowBlock& rows, int row, int first) const {
    Cell* cell = rows.AddRow();
    const int columns = PQnfields(Get());
    for (int i = first; i < columns; ++i, ++cell) {
        if (IsNull(row, i)) continue;
        const QByteArrayView text = At(row, i);
        const Oid type = PQftype(Get(), i);
        if (type == Int8 || type == Int4 || type == Numeric || type == Float8)
            SetNumber(*cell, text, type == Float8);
        else
            rows.SetText(*cell, text.data(), text.size());
    }
}

}  // namespace store::postgres
