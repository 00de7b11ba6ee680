#include "forms/RowModel.h"

#include <QSize>

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
    texts_.clear();
    cells_.clear();
    make_ = nullptr;
    made_.clear();
    toMake_ = 0;
    longest_.assign(Width(), 0);
    published_ = 0;
}

size_t RowModel::PlaceOf(int row, int column) const {
    return static_cast<size_t>(row) * Width() + static_cast<size_t>(column);
}

bool RowModel::HasCell(int row, int column) const {
    return row >= 0 && row < Count() && column >= 0 && column < columnCount();
}

void RowModel::ShowRows(int count, std::function<QStringList(int row)> make) {
    beginResetModel();
    Empty();
    make_ = std::move(make);
    toMake_ = count;
    published_ = count;
    endResetModel();
}

QStringList& RowModel::Made(int row) const {
    const auto [place, isNew] = made_.try_emplace(row);
    if (!isNew) return place->second;
    QStringList cells = make_(row);
    cells.resize(static_cast<qsizetype>(Width()));
    if (Measure(cells)) Q_EMIT const_cast<RowModel*>(this)->TextsGrew();
    return place->second = std::move(cells);
}

bool RowModel::Measure(const QStringList& cells) const {
    bool grew = false;
    for (size_t column = 0; column < Width(); ++column) {
        const qsizetype length = cells.value(static_cast<qsizetype>(column)).size();
        if (length <= longest_[column]) continue;
        longest_[column] = length;
        grew = true;
    }
    return grew;
}

void RowModel::MakeAll() {
    if (!make_) return;
    for (int row = 0; row < toMake_; ++row)
        for (const QString& cell : Made(row)) cells_.push_back(Keep(cell));
    make_ = nullptr;
    made_.clear();
}

RowModel::Piece RowModel::Keep(const QString& text) {
    const Piece piece{texts_.size(), text.size()};
    const auto* characters = reinterpret_cast<const char16_t*>(text.utf16());
    texts_.insert(texts_.end(), characters, characters + text.size());
    return piece;
}

int RowModel::Add(const QStringList& cells) {
    MakeAll();
    const int row = Count();
    for (qsizetype column = 0; column < columnCount(); ++column) cells_.push_back(Keep(cells.value(column)));
    Measure(cells);
    if (fills_ == 0) Publish();
    return row;
}

void RowModel::Remove(int row) {
    if (row < 0 || row >= Count()) return;
    MakeAll();
    Publish();
    beginRemoveRows({}, row, row);
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(PlaceOf(row, 0));
    cells_.erase(first, first + static_cast<std::ptrdiff_t>(Width()));
    --published_;
    endRemoveRows();
}

QStringView RowModel::Cell(int row, int column) const {
    if (!HasCell(row, column)) return {};
    if (make_) return Made(row)[column];
    const Piece& piece = cells_[PlaceOf(row, column)];
    return {texts_.data() + piece.start, piece.length};
}

void RowModel::SetCell(int row, int column, const QString& text) {
    if (!HasCell(row, column)) return;
    if (make_)
        Made(row)[column] = text;
    else
        cells_[PlaceOf(row, column)] = Keep(text);
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
    if (role == Qt::DisplayRole) return Cell(index.row(), index.column()).toString();
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
