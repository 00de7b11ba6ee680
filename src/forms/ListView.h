#pragma once

#include <QTimer>
#include <QTreeView>
#include <memory>
#include <vector>

#include "forms/RowSource.h"

namespace forms {

class RowModel;

// One column of a list: its heading, which side it is aligned to, and its width in pixels of the smallest step of type;
// width 0 hides it, a negative width takes what the others leave. Columns of numbers grow with what they hold.
struct ListColumn {
    QString heading;
    Qt::Alignment align = Qt::AlignLeft;
    int width = 100;
    bool shrinks = false;  // no wider than what it holds
};

// The list of every screen: rows of texts, one row selected at a time, no sorting by heading. A hundred thousand rows
// fill and paint at once. Rows and columns count from 0; column 0 is the item's own text.
class ListView : public QTreeView {
    Q_OBJECT

public:
    explicit ListView(QWidget* parent = nullptr);

    void SetColumns(std::vector<ListColumn> columns);

    int Count() const;
    void Clear();
    // Adds a row at the end; missing cells are empty. Returns its index.
    int Add(const QStringList& cells);
    void Remove(int row);
    QString Text(int row, int column = 0) const;
    void SetText(int row, int column, const QString& text);
    // First row whose column 0 has this text exactly; -1 when none has.
    int Find(QStringView text) const;

    // -1 when no row is selected.
    int Selected() const;
    // The text of the selected row; error 91 when no row is selected.
    QString SelectedText(int column = 0) const;
    // Selects a row and makes it visible; -1 selects none.
    void Select(int row);
    // Makes a row visible without selecting it.
    void BringIntoView(int row);

    enum class Selects { FirstRow, Nothing };
    // Takes the place of what the list held. Rows that are not here yet appear when they are; whoever asks before for
    // the count, or for one of them, waits for it.
    void ShowRows(std::unique_ptr<RowSource> source, Selects selects = Selects::FirstRow);
    // Empties a list whose rows are still coming in, and waits no longer for them.
    void StopComingIn();
    // Gives each column its width.
    void LayOutColumns();
    // Of every row; without it as the look has it.
    void SetRowHeight(int pixels);
    // Rows get lower, down to so many pixels, where the list is too low to have all of them in view.
    void KeepRowsInView(int lowest);
    // Low rows below a low heading, for few rows that nobody chooses.
    void MakeTight();
    // What an empty list says in the place of its rows.
    void SetEmptyText(const QString& text);
    // Many rows at once: between Begin and End nothing is repainted.
    void BeginFill();
    void EndFill();

    // Its heading and two rows.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // Another row, or none, is selected, and Selected() says which. The current row of a view's model is another thing:
    // a press moves it before it selects.
    void RowChosen();
    // A double click while a row is selected, wherever in the list it falls.
    void DoubleClicked();

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void reset() override;
    void doItemsLayout() override;
    void updateGeometries() override;
    void rowsInserted(const QModelIndex& parent, int first, int last) override;
    void keyPressEvent(QKeyEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event = nullptr) const override;

private:
    void TakeIn();
    void SelectFirst();
    void Report(const std::exception_ptr& why);
    int WidthOf(int column) const;
    int HeadingOf(int column) const;
    void ShareWidth();
    int NeedOf(int column) const;
    int NarrowestOf(int column) const;
    int LeastOf(int column) const;
    int FirstShownColumn() const;
    void FitRows();

    RowModel* rows_;
    std::vector<ListColumn> columns_;
    QString emptyText_;
    int selectedBefore_ = -1;  // the last press
    QTimer comingIn_;
    bool selectsFirst_ = false;
    int lowestRow_ = 0;  // 0: rows keep their height
    bool wrapsHeadings_ = false;
};

}  // namespace forms
