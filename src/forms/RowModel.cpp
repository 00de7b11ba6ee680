#include "forms/RowModel.h"

#include <QSize>

#include "forms/Tokens.h"

namespace forms {

void RowModel::SetColumns(const std::vector<ListColumn>& columns) {
    beginResetModel();
    headings_ = columns;
    cells_.clear();
    longest_.assign(columns.size(), 0);
    published_ = 0;
    endResetModel();
}

int RowModel::Count() const {
    return headings_.empty() ? 0 : static_cast<int>(cells_.size() / Width());
}

void RowModel::Clear() {
    if (cells_.empty()) return;
    beginResetModel();
    cells_.clear();
    longest_.assign(Width(), 0);
    published_ = 0;
    endResetModel();
}

int RowModel::Add(QStringList cells) {
    const int row = Count();
    for (size_t column = 0; column < Width(); ++column) {
        const auto at = static_cast<qsizetype>(column);
        cells_.push_back(at < cells.size() ? std::move(cells[at]) : QString());
        longest_[column] = qMax(longest_[column], cells_.back().size());
    }
    if (fills_ == 0) Publish();
    return row;
}

void RowModel::Remove(int row) {
    if (row < 0 || row >= Count()) return;
    Publish();
    beginRemoveRows({}, row, row);
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(row) * static_cast<std::ptrdiff_t>(Width());
    cells_.erase(first, first + static_cast<std::ptrdiff_t>(Width()));
    --published_;
    endRemoveRows();
}

const QString* RowModel::Cell(int row, int column) const {
    if (row < 0 || row >= Count() || column < 0 || column >= columnCount()) return nullptr;
    return &cells_[static_cast<size_t>(row) * Width() + static_cast<size_t>(column)];
}

void RowModel::SetCell(int row, int column, const QString& text) {
    const QString* cell = Cell(row, column);
    if (!cell) return;
    cells_[static_cast<size_t>(cell - cells_.data())] = text;
    longest_[static_cast<size_t>(column)] = qMax(longest_[static_cast<size_t>(column)], text.size());
    if (row >= published_) return;
    const QModelIndex changed = index(row, column);
    Q_EMIT dataChanged(changed, changed, {Qt::DisplayRole});
}

void RowModel::EndFill() {
    if (fills_ > 0 && --fills_ == 0) Publish();
}

void RowModel::Publish() {
    if (published_ == Count()) return;
    beginInsertRows({}, published_, Count() - 1);
    published_ = Count();
    endInsertRows();
}

int RowModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : published_;
}

int RowModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole) {
        const QString* cell = Cell(index.row(), index.column());
        return cell ? *cell : QVariant();
    }
    if (role == Qt::TextAlignmentRole) return headerData(index.column(), Qt::Horizontal, role);
    // From here and not from the style sheet, which a list that is filled before it is shown does not have yet.
    if (role == Qt::SizeHintRole) return QSize(0, Tokens::RowHeight);
    return {};
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const ListColumn& column = headings_[static_cast<size_t>(section)];
    if (role == Qt::DisplayRole) return column.heading;
    if (role == Qt::TextAlignmentRole) return int((column.align & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags RowModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

}  // namespace forms
