#include "forms/ListView.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include "forms/RowModel.h"
#include "values/Error.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int NothingSelected = 91;
constexpr int narrowestFlexibleColumn = 60;
constexpr int rowsMadeAtOnce = 1000;
// What the style leaves free on both sides of a cell's text.
constexpr int cellPadding = 22;

}  // namespace

ListView::ListView(QWidget* parent) : QTreeView(parent), rows_(new RowModel(this)) {
    setModel(rows_);
    // Not at once: rows are made while the list is painted, too.
    connect(rows_, &RowModel::TextsGrew, this, &ListView::WidenForNumbers, Qt::QueuedConnection);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    setTabKeyNavigation(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    header()->setSectionsClickable(false);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(0);
    header()->setHighlightSections(false);
}

void ListView::SetColumns(std::vector<ListColumn> columns) {
    columns_ = std::move(columns);
    rows_->SetColumns(columns_);
    LayOutColumns();
}

int ListView::Count() const {
    return rows_->Count();
}

void ListView::Clear() {
    rows_->Clear();
}

int ListView::Add(const QStringList& cells) {
    const int row = rows_->Add(cells);
    if (updatesEnabled()) WidenForNumbers();
    return row;
}

void ListView::Remove(int row) {
    const int selected = Selected();
    rows_->Remove(row);
    if (selected == row) Select(qMin(row, Count() - 1));
}

QString ListView::Text(int row, int column) const {
    return rows_->Cell(row, column).toString();
}

void ListView::SetText(int row, int column, const QString& text) {
    rows_->SetCell(row, column, text);
    WidenForNumbers();
}

int ListView::Find(QStringView text) const {
    for (int row = 0; row < Count(); ++row)
        if (rows_->Cell(row, 0) == text) return row;
    return -1;
}

int ListView::Selected() const {
    const QModelIndexList chosen = selectionModel()->selectedRows();
    return chosen.isEmpty() ? -1 : chosen.first().row();
}

QString ListView::SelectedText(int column) const {
    const int row = Selected();
    if (row < 0) throw values::Error(NothingSelected, u"No row of the list is selected."_s);
    return Text(row, column);
}

void ListView::Select(int row) {
    rows_->Publish();
    if (row < 0 || row >= Count()) {
        selectionModel()->clear();
        return;
    }
    const QModelIndex index = rows_->index(row, FirstShownColumn());
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    // A list that nobody sees scrolls to its current row by itself when it is shown, and need not be laid out now.
    if (isVisible()) scrollTo(index);
}

void ListView::BringIntoView(int row) {
    if (row < 0 || row >= Count()) return;
    rows_->Publish();
    scrollTo(rows_->index(row, FirstShownColumn()));
}

void ListView::ShowRows(int count, std::function<QStringList(int row)> make) {
    rows_->ShowRows(count, std::move(make));
    for (int row = 0; row < qMin(count, rowsMadeAtOnce); ++row) rows_->Cell(row, 0);
    WidenForNumbers();
}

void ListView::BeginFill() {
    rows_->BeginFill();
    setUpdatesEnabled(false);
}

void ListView::EndFill() {
    rows_->EndFill();
    setUpdatesEnabled(true);
    WidenForNumbers();
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && Selected() >= 0) Q_EMIT DoubleClicked();
}

void ListView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    GiveRestToFlexibleColumns();
}

void ListView::focusInEvent(QFocusEvent* event) {
    QTreeView::focusInEvent(event);
    // The view makes its first row current without selecting it; the Down key would then skip that row.
    if (Selected() < 0) selectionModel()->clearCurrentIndex();
}

bool ListView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        const QString text = Text(index.row(), index.column());
        if (fontMetrics().horizontalAdvance(text) > visualRect(index).width() - cellPadding) {
            QToolTip::showText(help->globalPos(), text, this);
            return true;
        }
    }
    return QTreeView::viewportEvent(event);
}

QItemSelectionModel::SelectionFlags ListView::selectionCommand(const QModelIndex& index, const QEvent*) const {
    // A click beside the rows keeps the selection, and no modifier takes it away.
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void ListView::LayOutColumns() {
    for (size_t i = 0; i < columns_.size(); ++i) {
        const int section = static_cast<int>(i);
        header()->setSectionHidden(section, columns_[i].width == 0);
        if (columns_[i].width > 0) header()->resizeSection(section, columns_[i].width);
    }
    GiveRestToFlexibleColumns();
}

// A number that does not show all its digits is a wrong number: columns of numbers grow with what they hold.
void ListView::WidenForNumbers() {
    const int digit = fontMetrics().horizontalAdvance(u'0');
    bool widened = false;
    for (size_t i = 0; i < columns_.size(); ++i) {
        const int section = static_cast<int>(i);
        if (columns_[i].width <= 0 || !(columns_[i].align & Qt::AlignRight)) continue;
        const int needed = static_cast<int>(rows_->LongestText(section)) * digit + cellPadding;
        if (needed <= header()->sectionSize(section)) continue;
        header()->resizeSection(section, needed);
        widened = true;
    }
    if (widened) GiveRestToFlexibleColumns();
}

// A hidden first column would not do as the current cell: the view could not scroll to it.
int ListView::FirstShownColumn() const {
    int column = 0;
    while (column + 1 < static_cast<int>(columns_.size()) && header()->isSectionHidden(column)) ++column;
    return column;
}

void ListView::GiveRestToFlexibleColumns() {
    int rest = viewport()->width();
    std::vector<int> flexible;
    for (size_t i = 0; i < columns_.size(); ++i) {
        const int section = static_cast<int>(i);
        if (columns_[i].width < 0)
            flexible.push_back(section);
        else
            rest -= header()->sectionSize(section);
    }
    for (size_t i = 0; i < flexible.size(); ++i) {
        const int share = rest / static_cast<int>(flexible.size() - i);
        header()->resizeSection(flexible[i], qMax(share, narrowestFlexibleColumn));
        rest -= share;
    }
}

}  // namespace forms
