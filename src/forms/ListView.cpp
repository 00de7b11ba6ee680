#include "forms/ListView.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include "forms/Program.h"
#include "forms/RowModel.h"
#include "forms/Swipe.h"
#include "forms/Theme.h"
#include "forms/Tokens.h"
#include "values/Error.h"

namespace forms {

namespace {

constexpr int widthOfADate = 110;
constexpr int narrowestFlexibleColumn = 60;
constexpr int betweenLooks = 15;  // milliseconds, while rows are coming in
// What the style leaves free on both sides of a cell's text.
constexpr int cellPadding = 22;
constexpr int roundingRoom = 4;

// To paint a heading is to ask whether all rows of its column are chosen.
class Headings : public QHeaderView {
public:
    Headings(RowModel& rows, QWidget* parent) : QHeaderView(Qt::Horizontal, parent), rows_(rows) {
        setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        const RowModel::ViewAsks viewAsks(rows_);
        QHeaderView::paintEvent(event);
    }

private:
    RowModel& rows_;
};

}  // namespace

ListView::ListView(QWidget* parent) : QTreeView(parent), rows_(new RowModel(this)) {
    setHeader(new Headings(*rows_, this));
    setModel(rows_);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListView::RowChosen);
    // Not at once: rows are looked at while the list is painted.
    connect(rows_, &RowModel::TextsGrew, this, &ListView::LayOutColumns, Qt::QueuedConnection);
    // Not at once either: whoever has just found the list empty has work of his own under way.
    connect(rows_, &RowModel::Failed, this, &ListView::Report, Qt::QueuedConnection);
    connect(&comingIn_, &QTimer::timeout, this, &ListView::TakeIn);
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
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    header()->setSectionsClickable(false);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(0);
    header()->setHighlightSections(false);
    new Swipe(this, [this] { Select(selectedBefore_); });
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
    LayOutColumns();
}

int ListView::Add(const QStringList& cells) {
    const int row = rows_->Add(cells);
    if (updatesEnabled()) LayOutColumns();
    return row;
}

void ListView::Remove(int row) {
    const int selected = Selected();
    rows_->Remove(row);
    if (selected == row) Select(qMin(row, Count() - 1));
    LayOutColumns();
}

QString ListView::Text(int row, int column) const {
    return rows_->Cell(row, column);
}

void ListView::SetText(int row, int column, const QString& text) {
    rows_->SetCell(row, column, text);
    LayOutColumns();
}

int ListView::Find(QStringView text) const {
    for (int row = 0; row < Count(); ++row)
        if (rows_->Cell(row, 0) == text) return row;
    return -1;
}

int ListView::Selected() const {
    rows_->Await(1);  // the first row is selected as soon as it is there
    const QModelIndexList chosen = selectionModel()->selectedRows();
    return chosen.isEmpty() ? -1 : chosen.first().row();
}

QString ListView::SelectedText(int column) const {
    const int row = Selected();
    if (row < 0) throw values::Error(values::NoObject, tr("No row of the list is selected."));
    return Text(row, column);
}

void ListView::Select(int row) {
    rows_->Publish();
    selectsFirst_ = false;
    rows_->Await(row + 1);
    const QModelIndex index = rows_->index(row, FirstShownColumn());
    if (!index.isValid()) {
        selectionModel()->clear();
        return;
    }
    const RowModel::ViewAsks viewAsks(*rows_);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    // A list that nobody sees scrolls to its current row by itself when it is shown, and need not be laid out now.
    if (isVisible()) scrollTo(index);
}

void ListView::BringIntoView(int row) {
    rows_->Publish();
    rows_->Await(row + 1);
    const QModelIndex index = rows_->index(row, FirstShownColumn());
    if (index.isValid()) scrollTo(index);
}

void ListView::ShowRows(std::unique_ptr<RowSource> source, Selects selects) {
    rows_->ShowRows(std::move(source));
    if (rows_->IsComingIn()) comingIn_.start(betweenLooks);
    LayOutColumns();
    selectsFirst_ = selects == Selects::FirstRow;
    SelectFirst();
}

void ListView::StopComingIn() {
    if (rows_->IsComingIn()) rows_->Clear();
    comingIn_.stop();
}

void ListView::TakeIn() {
    rows_->TakeIn();
    if (!rows_->IsComingIn()) comingIn_.stop();
}

void ListView::SelectFirst() {
    if (selectsFirst_ && rows_->KnownToView() > 0) Select(0);
}

// The list can't show a part for good.
void ListView::Report(const std::exception_ptr& why) {
    const QWidget* titled = this;
    while (titled->windowTitle().isEmpty() && titled->parentWidget()) titled = titled->parentWidget();
    Run([&why] { std::rethrow_exception(why); }, titled->windowTitle());
}

void ListView::BeginFill() {
    rows_->BeginFill();
    setUpdatesEnabled(false);
}

void ListView::EndFill() {
    rows_->EndFill();
    setUpdatesEnabled(true);
    LayOutColumns();
}

QSize ListView::minimumSizeHint() const {
    return {QTreeView::minimumSizeHint().width(), header()->sizeHint().height() + 2 * TheTokens().RowHeight};
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && Selected() >= 0) Q_EMIT DoubleClicked();
}

void ListView::reset() {
    const RowModel::ViewAsks viewAsks(*rows_);
    QTreeView::reset();
}

void ListView::doItemsLayout() {
    const RowModel::ViewAsks viewAsks(*rows_);
    QTreeView::doItemsLayout();
}

void ListView::updateGeometries() {
    const RowModel::ViewAsks viewAsks(*rows_);
    QTreeView::updateGeometries();
}

void ListView::rowsInserted(const QModelIndex& parent, int first, int last) {
    {
        const RowModel::ViewAsks viewAsks(*rows_);
        QTreeView::rowsInserted(parent, first, last);
    }
    SelectFirst();
    FitRows();
}

void ListView::keyPressEvent(QKeyEvent* event) {
    const RowModel::ViewAsks viewAsks(*rows_);
    QTreeView::keyPressEvent(event);
}

QModelIndex ListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action == MoveEnd) rows_->Count();
    return QTreeView::moveCursor(action, modifiers);
}

void ListView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    LayOutColumns();
    FitRows();
}

void ListView::focusInEvent(QFocusEvent* event) {
    QTreeView::focusInEvent(event);
    // The view makes its first row current without selecting it; the Down key would then skip that row.
    if (!selectionModel()->hasSelection()) selectionModel()->clearCurrentIndex();
}

bool ListView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        const QString text = Text(index.row(), index.column());
        if (index.isValid() && fontMetrics().horizontalAdvance(text) > visualRect(index).width() - cellPadding) {
            QToolTip::showText(help->globalPos(), text, this);
            return true;
        }
    }
    const RowModel::ViewAsks viewAsks(*rows_);
    if (event->type() == QEvent::MouseButtonPress) {
        const QModelIndexList chosen = selectionModel()->selectedRows();
        selectedBefore_ = chosen.isEmpty() ? -1 : chosen.first().row();
    }
    return QTreeView::viewportEvent(event);
}

void ListView::SetRowHeight(int pixels) {
    rows_->SetRowHeight(pixels);
    if (isVisible()) scheduleDelayedItemsLayout();
}

void ListView::KeepRowsInView(int lowest) {
    lowestRow_ = lowest;
    FitRows();
}

void ListView::FitRows() {
    if (lowestRow_ == 0 || rows_->rowCount() == 0) return;
    const int usual = TheTokens().RowHeight;
    SetRowHeight(qBound(qMin(lowestRow_, usual), viewport()->height() / rows_->rowCount(), usual));
}

void ListView::MakeTight() {
    setProperty("tight", true);
    rows_->MakeTight();
}

void ListView::SetEmptyText(const QString& text) {
    emptyText_ = text;
    viewport()->update();
}

// The pale ground of the chosen row alone would not stand out enough.
void ListView::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QTreeView::drawRow(painter, option, index);
    if (!selectionModel()->isSelected(index) || property("role").toString() == u"stale") return;
    const int line = Scaled(2);
    const QRect row(0, option.rect.top(), viewport()->width(), option.rect.height());
    painter->fillRect(row.adjusted(0, 0, 0, line - row.height()), TheTokens().Accent);
    painter->fillRect(row.adjusted(0, row.height() - line, 0, 0), TheTokens().Accent);
}

void ListView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (emptyText_.isEmpty() || rows_->KnownToView() > 0 || rows_->IsComingIn()) return;
    QPainter painter(viewport());
    painter.setPen(TheTokens().Muted);
    const int margin = Scaled(cellPadding);
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, emptyText_);
}

QItemSelectionModel::SelectionFlags ListView::selectionCommand(const QModelIndex& index, const QEvent*) const {
    // A click beside the rows keeps the selection, and no modifier takes it away.
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

// Before a bar would have to come, headings go on two lines, for which all but a tight list has the height.
void ListView::LayOutColumns() {
    wrapsHeadings_ = false;
    ShareWidth();
    if (header()->length() <= viewport()->width() || property("tight").toBool()) return;
    wrapsHeadings_ = true;
    ShareWidth();
}

void ListView::ShareWidth() {
    int rest = viewport()->width();
    std::vector<int> flexible;
    for (int column = 0; column < static_cast<int>(columns_.size()); ++column) {
        const int width = columns_[static_cast<size_t>(column)].width;
        header()->setSectionHidden(column, width == 0);
        if (width < 0) flexible.push_back(column);
        if (width <= 0) continue;
        header()->resizeSection(column, WidthOf(column));
        rest -= header()->sectionSize(column);
    }
    int lacking = -rest;
    for (const int column : flexible) lacking += LeastOf(column);
    // Numbers are whole, so codes give way before a bar would have to come, and then what room others have to spare.
    for (const bool isCode : {true, false})
        for (int column = 0; column < static_cast<int>(columns_.size()) && lacking > 0; ++column) {
            const ListColumn& facts = columns_[static_cast<size_t>(column)];
            if (facts.width <= 0 || facts.shrinks != isCode) continue;
            const int width = header()->sectionSize(column);
            const int least = isCode ? Scaled(narrowestFlexibleColumn) : NeedOf(column);
            header()->resizeSection(column, qMin(width, qMax(least, width - lacking)));
            rest += width - header()->sectionSize(column);
            lacking -= width - header()->sectionSize(column);
        }
    for (size_t i = 0; i < flexible.size(); ++i) {
        const int share = rest / static_cast<int>(flexible.size() - i);
        header()->resizeSection(flexible[i], qMax(share, NarrowestOf(flexible[i])));
        rest -= share;
    }
}

// A number that does not show all its digits is a wrong number, and a heading may be longer in another language.
int ListView::WidthOf(int column) const {
    const ListColumn& facts = columns_[static_cast<size_t>(column)];
    const int designed = Scaled(facts.width);
    if (facts.align & Qt::AlignRight) return qMax(designed, NeedOf(column));
    return facts.shrinks ? qMin(designed, NeedOf(column) + roundingRoom) : qMax(designed, HeadingOf(column));
}

int ListView::HeadingOf(int column) const {
    const QString& heading = columns_[static_cast<size_t>(column)].heading;
    const QFontMetrics metrics = header()->fontMetrics();
    int widest = metrics.horizontalAdvance(heading);
    for (qsizetype blank = heading.indexOf(u' '); blank > 0 && wrapsHeadings_; blank = heading.indexOf(u' ', blank + 1))
        widest = qMin(widest, qMax(metrics.horizontalAdvance(heading.first(blank)),
                                   metrics.horizontalAdvance(heading.sliced(blank + 1))));
    return widest + cellPadding;
}

// What shows all that the column holds, its heading too.
int ListView::NeedOf(int column) const {
    const int longest = fontMetrics().horizontalAdvance(QString(rows_->LongestText(column), u'0')) + cellPadding;
    return qMax(longest, HeadingOf(column));
}

// With its heading whole: this is never given up.
int ListView::NarrowestOf(int column) const {
    return qMax(Scaled(narrowestFlexibleColumn), HeadingOf(column));
}

// What others make room for: a date is shown whole, and of a name so much that it can be told from others.
int ListView::LeastOf(int column) const {
    return qMax(NarrowestOf(column), qMin(NeedOf(column), Scaled(widthOfADate)));
}

// A hidden first column would not do as the current cell: the view could not scroll to it.
int ListView::FirstShownColumn() const {
    int column = 0;
    while (column + 1 < static_cast<int>(columns_.size()) && header()->isSectionHidden(column)) ++column;
    return column;
}

}  // namespace forms
