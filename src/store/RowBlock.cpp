#include "store/RowBlock.h"

#include <algorithm>

namespace store {

void RowBlock::DropGone() {
    const auto begin = [this](int row) { return cells_.begin() + std::ptrdiff_t{row} * columns_; };
    int kept = 0;
    for (int row = 0; row < Rows(); ++row) {
        if (Gone(row)) continue;
        if (kept != row) std::copy_n(begin(row), columns_, begin(kept));
        ++kept;
    }
    cells_.resize(static_cast<size_t>(kept) * static_cast<size_t>(columns_));
}

RowBlock RowBlock::Row(int row) const {
    RowBlock single;
    single.Clear(columns_);
    Cell* cells = single.AddRow();
    for (int i = 0; i < columns_; ++i) {
        const Cell& cell = At(row, i);
        if (cell.kind == Cell::Kind::Text)
            single.SetText(cells[i], texts_.data() + cell.offset, cell.length);
        else
            cells[i] = cell;
    }
    return single;
}

dialect::BoundValue RowBlock::ValueAt(int row, int column) const {
    const Cell& cell = At(row, column);
    switch (cell.kind) {
        case Cell::Kind::Integer:
            return cell.integer;
        case Cell::Kind::Real:
            return cell.real;
        case Cell::Kind::Text:
            return Text(cell).toByteArray();
        case Cell::Kind::Null:
        case Cell::Kind::Gone:
            break;
    }
    return {};
}

}  // namespace store
