#include "store/RowBlock.h"

#include <algorithm>

namespace store {

void RowBlock::DropGone() {
    int kept = 0;
    for (int row = 0; row < Rows(); ++row) {
        if (Gone(row)) continue;
        if (kept != row) std::copy_n(cells_.begin() + row * columns_, columns_, cells_.begin() + kept * columns_);
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
