#pragma once

#include <QByteArrayView>
#include <vector>

#include "store/dialect/Plan.h"

namespace store {

// Rows as an engine gave them, packed: sixteen bytes a cell, and all texts (UTF-8) side by side in one buffer.
class RowBlock {
public:
    struct Cell {
        enum class Kind : quint32 { Null, Integer, Real, Text, Gone };

        Kind kind = Kind::Null;
        quint32 length = 0;  // of a text
        union {
            qint64 integer = 0;
            double real;
            qsizetype offset;  // of a text
        };
    };

    void Clear(int columns) {
        columns_ = columns;
        cells_.clear();
        texts_.clear();
    }

    void Reserve(int rows) { cells_.reserve(static_cast<size_t>(rows) * static_cast<size_t>(columns_)); }

    // The cells of a new row, all null, to be filled at once.
    Cell* AddRow() {
        cells_.resize(cells_.size() + static_cast<size_t>(columns_));
        return cells_.data() + cells_.size() - columns_;
    }
    void SetText(Cell& cell, const char* text, qsizetype length) {
        cell.kind = Cell::Kind::Text;
        cell.length = static_cast<quint32>(length);
        cell.offset = static_cast<qsizetype>(texts_.size());
        texts_.insert(texts_.end(), text, text + length);
    }
    // A whole row that is not in the store any more.
    void AddGone() {
        Cell* cells = AddRow();
        for (int i = 0; i < columns_; ++i) cells[i].kind = Cell::Kind::Gone;
    }

    int Rows() const { return columns_ == 0 ? 0 : static_cast<int>(cells_.size() / static_cast<size_t>(columns_)); }
    const Cell& At(int row, int column) const {
        return cells_[static_cast<size_t>(row) * static_cast<size_t>(columns_) + static_cast<size_t>(column)];
    }
    QByteArrayView Text(const Cell& cell) const { return {texts_.data() + cell.offset, qsizetype{cell.length}}; }
    bool Gone(int row) const { return At(row, 0).kind == Cell::Kind::Gone; }

    // Takes the rows out that are not in the store any more.
    void DropGone();
    // One row as a block of its own.
    RowBlock Row(int row) const;
    // One cell as a value to be stored.
    dialect::BoundValue ValueAt(int row, int column) const;

private:
    int columns_ = 0;
    std::vector<Cell> cells_;
    std::vector<char> texts_;
};

}  // namespace store
