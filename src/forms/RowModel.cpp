#include "forms/RowModel.h"

#include <QSize>
#include <algorithm>

#include "forms/Tokens.h"

namespace forms {

void RowModel::SetColumns(const std::vector<ListColumn>& columns) {
    beginResetModel();
    headings_ = columns;
    Empty();
    endResetModel();
}

int RowModel::Count() const {
    if (make_) return toMake_;
    return headings_.empty() ? 0 : static_cast<int>(cells_.size() / Width());
}

void RowModel::Clear() {
    if (Count() == 0) return;
    beginResetModel();
    Empty();
    endResetModel();
}

void RowModel::Empty() {
    cells_.clear();
    make_ = nullptr;
    made_.clear();
    toMake_ = 0;
    longest_.assign(Width(), 0);
    published_ = 0;
}

void RowModel::ShowRows(int count, std::function<QStringList(int row)> make) {
    beginResetModel();
    Empty();
    make_ = std::move(make);
    toMake_ = count;
    published_ = count;
    endResetModel();
}

RowModel::Row& RowModel::Made(int row) const {
    const auto [place, isNew] = made_.try_emplace(row);
    if (!isNew) return place->second;
    QStringList cells = make_(row);
    cells.resize(static_cast<qsizetype>(Width()));
    place->second.assign(std::make_move_iterator(cells.begin()), std::make_move_iterator(cells.end()));
    if (Measure(place->second.data())) Q_EMIT const_cast<RowModel*>(this)->TextsGrew();
    return place->second;
}

bool RowModel::Measure(const QString* cells) const {
    bool grew = false;
    for (size_t column = 0; column < Width(); ++column) {
        if (cells[column].size() <= longest_[column]) continue;
        longest_[column] = cells[column].size();
        grew = true;
    }
    return grew;
}

void RowModel::MakeAll() {
    if (!make_) return;
    cells_.reserve(static_cast<size_t>(toMake_) * Width());
    for (int row = 0; row < toMake_; ++row) std::ranges::copy(Made(row), std::back_inserter(cells_));
    make_ = nullptr;
    made_.clear();
}

int RowModel::Add(QStringList cells) {
    MakeAll();
    const int row = Count();
    for (size_t column = 0; column < Width(); ++column) {
        const auto at = static_cast<qsizetype>(column);
        cells_.push_back(at < cells.size() ? std::move(cells[at]) : QString());
    }
    Measure(cells_.data() + static_cast<size_t>(row) * Width());
    if (fills_ == 0) Publish();
    return row;
}

void RowModel::Remove(int row) {
    if (row < 0 || row >= Count()) return;
    MakeAll();
    Publish();
    beginRemoveRows({}, row, row);
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(row) * static_cast<std::ptrdiff_t>(Width());
    cells_.erase(first, first + static_cast<std::ptrdiff_t>(Width()));
    --published_;
    endRemoveRows();
}

const QString* RowModel::Cell(int row, int column) const {
    if (row < 0 || row >= Count() || column < 0 || column >= columnCount()) return nullptr;
    const QString* cells = make_ ? Made(row).data() : &cells_[static_cast<size_t>(row) * Width()];
    return cells + column;
}

void RowModel::SetCell(int row, int column, const QString& text) {
    if (!Cell(row, column)) return;
    QString* cells = make_ ? Made(row).data() : &cells_[static_cast<size_t>(row) * Width()];
    cells[column] = text;
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
