#include "store/RowBlock.h"

namespace store {

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
