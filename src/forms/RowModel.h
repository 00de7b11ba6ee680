#pragma once

#include <QAbstractTableModel>
#include <exception>
#include <memory>
#include <unordered_map>
#include <vector>

#include "forms/ListView.h"

namespace forms {

// Rows of texts, which lie behind each other in one store of characters: half a million rows take no room beside their
// texts. Rows added while filling exist at once for whoever asks here, but the view learns of them, all together, when
// the filling ends.
//
// The rows of a source are texts only when they are looked at. While they come in, the view is content with those that
// are here; everybody else who counts the rows, or asks for one that is missing, waits for it: nobody takes a part for
// the whole.
class RowModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetColumns(const std::vector<ListColumn>& columns);
    void SetRowHeight(int pixels) { rowHeight_ = pixels; }
    void MakeTight() { isTight_ = true; }

    int Count();
    // Has so many rows on hand where there are as many, whoever asks.
    void Await(int rows) const;
    void Clear();
    int Add(const QStringList& cells);
    void Remove(int row);
    // Takes the place of what the list held.
    void ShowRows(std::unique_ptr<RowSource> source);
    int KnownToView() const { return published_; }
    // Whether rows are still coming in.
    bool IsComingIn() const { return source_ && !source_->IsWhole(); }
    // Tells the view of what has come in. A source that fails leaves the list empty.
    void TakeIn() {
        if (IsComingIn() && !isTaking_) Take(0);
    }
    // Empty where there is no such cell.
    QString Cell(int row, int column);
    void SetCell(int row, int column, const QString& text);

    // Characters of the longest text that a column has held since the list was last empty, or a row was last removed;
    // of a source's rows those that were looked at count.
    qsizetype LongestText(int column) const { return longest_[static_cast<size_t>(column)]; }

    void BeginFill() { ++fills_; }
    void EndFill();
    // Tells the view of rows that it does not know yet.
    void Publish();

    // While one lives, it is the view that asks.
    class ViewAsks {
    public:
        explicit ViewAsks(RowModel& rows) : rows_(rows) { ++rows_.viewAsks_; }
        ~ViewAsks() { --rows_.viewAsks_; }
        ViewAsks(const ViewAsks&) = delete;
        ViewAsks& operator=(const ViewAsks&) = delete;

    private:
        RowModel& rows_;
    };

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    // A row of a source was looked at that holds a longer text than its column has held before.
    void TextsGrew() const;
    // The rows that were still to come can't be had.
    void Failed(const std::exception_ptr& why);

private:
    // A text within texts_.
    struct Piece {
        size_t start = 0;
        qsizetype length = 0;
    };

    int RowHeight() const;
    int AlignmentOf(int column) const;
    size_t Width() const { return headings_.size(); }
    size_t PlaceOf(int row, int column) const;
    bool HasCell(int row, int column);
    bool HasColumn(int column) const { return column >= 0 && column < static_cast<int>(headings_.size()); }
    void Empty();
    Piece Keep(const QString& text);
    QString TextAt(int row, int column) const;
    // The same, and tells when the text needs more room than those before.
    QString LookedAt(int row, int column) const;
    // Notes the length of a text; true when it is the longest of its column.
    bool Measure(int column, qsizetype length) const;
    void Take(int rows);
    // Goes on as a list that was filled row by row.
    void LeaveSource();

    std::vector<ListColumn> headings_;
    // Texts that were replaced stay until the list is emptied.
    std::vector<char16_t> texts_;
    std::vector<Piece> cells_;
    mutable std::vector<qsizetype> longest_;
    // Instead of cells_, with the cells that were written since.
    std::unique_ptr<RowSource> source_;
    std::unordered_map<size_t, QString> written_;
    int rowHeight_ = 0;  // 0: as the look has it
    bool isTight_ = false;
    int published_ = 0;
    int fills_ = 0;
    int viewAsks_ = 0;
    bool isTaking_ = false;  // the view learns of rows, and may ask meanwhile
};

}  // namespace forms
