#include "forms/RowModel.h"

#include <QScopedValueRollback>
#include <QSize>
#include <limits>

#include "forms/Tokens.h"

namespace forms {

namespace {

constexpr int AllRows = std::numeric_limits<int>::max();
constexpr std::chrono::hours Patience(24);
// Rows of a source whose texts make room for themselves before they are seen.
constexpr int RowsMeasured = 64;

}  // namespace

void RowModel::SetColumns(const std::vector<ListColumn>& columns) {
    beginResetModel();
    headings_ = columns;
    Empty();
    endResetModel();
}

int RowModel::Count() {
    if (!source_) return headings_.empty() ? 0 : static_cast<int>(cells_.size() / Width());
    Await(AllRows);
    return published_;
}

void RowModel::Clear() {
    if (!source_ && Count() == 0) return;
    beginResetModel();
    Empty();
    endResetModel();
}

void RowModel::Empty() {
    texts_.clear();
    cells_.clear();
    source_.reset();
    written_.clear();
    longest_.assign(Width(), 0);
    published_ = 0;
}

size_t RowModel::PlaceOf(int row, int column) const {
    return static_cast<size_t>(row) * Width() + static_cast<size_t>(column);
}

void RowModel::ShowRows(std::unique_ptr<RowSource> source) {
    beginResetModel();
    Empty();
    source_ = std::move(source);
    published_ = source_->WaitFor(0, {});
    const int measured = qMin(published_, RowsMeasured);
    for (int row = 0; row < measured; ++row)
        for (int column = 0; column < static_cast<int>(Width()); ++column)
            Measure(column, source_->Text(row, column).size());
    endResetModel();
}

// To whoever asks, a list whose rows can't be had is empty; the list tells why.
void RowModel::Take(int rows) {
    const QScopedValueRollback taking(isTaking_, true);
    try {
        const int here = source_->WaitFor(rows, Patience);
        if (here == published_) return;
        beginInsertRows({}, published_, here - 1);
        published_ = here;
        endInsertRows();
    } catch (...) {
        Clear();
        Q_EMIT Failed(std::current_exception());
    }
}

// Whoever counts rows does not mean to change the list; that it grows by what was on its way is no change.
void RowModel::Await(int rows) const {
    if (rows > published_ && IsComingIn() && !isTaking_) const_cast<RowModel*>(this)->Take(rows);
}

bool RowModel::Measure(int column, qsizetype length) const {
    qsizetype& longest = longest_[static_cast<size_t>(column)];
    if (length <= longest) return false;
    longest = length;
    return true;
}

void RowModel::LeaveSource() {
    if (!source_) return;
    Await(AllRows);
    for (int row = 0; row < published_; ++row)
        for (int column = 0; column < static_cast<int>(Width()); ++column) cells_.push_back(Keep(TextAt(row, column)));
    source_.reset();
    written_.clear();
}

RowModel::Piece RowModel::Keep(const QString& text) {
    const Piece piece{texts_.size(), text.size()};
    const auto* characters = reinterpret_cast<const char16_t*>(text.utf16());
    texts_.insert(texts_.end(), characters, characters + text.size());
    return piece;
}

int RowModel::Add(const QStringList& cells) {
    LeaveSource();
    const int row = Count();
    for (int column = 0; column < static_cast<int>(Width()); ++column) {
        const QString& text = cells.value(column);
        cells_.push_back(Keep(text));
        Measure(column, text.size());
    }
    if (fills_ == 0) Publish();
    return row;
}

void RowModel::Remove(int row) {
    if (row < 0 || row >= Count()) return;
    LeaveSource();
    Publish();
    beginRemoveRows({}, row, row);
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(PlaceOf(row, 0));
    cells_.erase(first, first + static_cast<std::ptrdiff_t>(Width()));
    --published_;
    longest_.assign(Width(), 0);
    for (size_t cell = 0; cell < cells_.size(); ++cell) Measure(static_cast<int>(cell % Width()), cells_[cell].length);
    endRemoveRows();
}

QString RowModel::TextAt(int row, int column) const {
    if (!source_) {
        const Piece& piece = cells_[PlaceOf(row, column)];
        return QStringView(texts_.data() + piece.start, piece.length).toString();
    }
    const auto written = written_.find(PlaceOf(row, column));
    return written == written_.end() ? source_->Text(row, column) : written->second;
}

QString RowModel::LookedAt(int row, int column) const {
    QString text = TextAt(row, column);
    if (source_ && Measure(column, text.size())) Q_EMIT TextsGrew();
    return text;
}

bool RowModel::HasCell(int row, int column) {
    if (row < 0 || !HasColumn(column)) return false;
    Await(row + 1);
    return row < (source_ ? published_ : Count());
}

QString RowModel::Cell(int row, int column) {
    return HasCell(row, column) ? LookedAt(row, column) : QString();
}

void RowModel::SetCell(int row, int column, const QString& text) {
    if (!HasCell(row, column)) return;
    if (source_)
        written_[PlaceOf(row, column)] = text;
    else
        cells_[PlaceOf(row, column)] = Keep(text);
    Measure(column, text.size());
    if (row >= published_) return;
    const QModelIndex changed = index(row, column);
    Q_EMIT dataChanged(changed, changed, {Qt::DisplayRole});
}

void RowModel::EndFill() {
    if (fills_ > 0 && --fills_ == 0) Publish();
}

void RowModel::Publish() {
    if (source_ || published_ == Count()) return;
    beginInsertRows({}, published_, Count() - 1);
    published_ = Count();
    endInsertRows();
}

QModelIndex RowModel::index(int row, int column, const QModelIndex& parent) const {
    if (row < 0 || !HasColumn(column) || parent.isValid()) return {};
    if (viewAsks_ == 0) Await(row + 1);
    return row < published_ ? createIndex(row, column) : QModelIndex();
}

bool RowModel::hasChildren(const QModelIndex& parent) const {
    if (parent.isValid() || headings_.empty()) return false;
    if (viewAsks_ == 0) Await(1);
    return published_ > 0;
}

int RowModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    if (viewAsks_ == 0) Await(AllRows);
    return published_;
}

int RowModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole) {
        if (!index.isValid() || index.row() >= published_ || !HasColumn(index.column())) return {};
        return LookedAt(index.row(), index.column());
    }
    if (role == Qt::TextAlignmentRole && HasColumn(index.column())) return AlignmentOf(index.column());
    // From here and not from the style sheet, which a list that is filled before it is shown does not have yet.
    if (role == Qt::SizeHintRole) return QSize(0, RowHeight());
    return {};
}

int RowModel::RowHeight() const {
    if (rowHeight_) return rowHeight_;
    return isTight_ ? TheTokens().TightRowHeight : TheTokens().RowHeight;
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const ListColumn& column = headings_[static_cast<size_t>(section)];
    if (role == Qt::DisplayRole) return column.heading;
    if (role == Qt::TextAlignmentRole) return AlignmentOf(section) | Qt::TextWordWrap;
    return {};
}

int RowModel::AlignmentOf(int column) const {
    return int((headings_[static_cast<size_t>(column)].align & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter);
}

Qt::ItemFlags RowModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

}  // namespace forms
