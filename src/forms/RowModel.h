#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <unordered_map>
#include <vector>

#include "forms/ListView.h"

namespace forms {

// Rows of texts, which lie behind each other in one store of characters: half a million rows take no room beside their
// texts. Rows added while filling exist at once for whoever asks here, but the view learns of them, all together, when
// the filling ends.
class RowModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetColumns(const std::vector<ListColumn>& columns);

    int Count() const;
    void Clear();
    int Add(const QStringList& cells);
    void Remove(int row);
    // `count` rows, the cells of each made when they are first asked for.
    void ShowRows(int count, std::function<QStringList(int row)> make);
    // Empty where there is no such cell; good until the next change.
    QStringView Cell(int row, int column) const;
    void SetCell(int row, int column, const QString& text);

    // Characters of the longest text that a column has held since the list was last empty.
    qsizetype LongestText(int column) const { return longest_[static_cast<size_t>(column)]; }

    void BeginFill() { ++fills_; }
    void EndFill();
    // Tells the view of rows that it does not know yet.
    void Publish();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    // A row that was made late holds a longer text than its column has held before.
    void TextsGrew();

private:
    // A text within texts_.
    struct Piece {
        size_t start = 0;
        qsizetype length = 0;
    };

    size_t Width() const { return headings_.size(); }
    size_t PlaceOf(int row, int column) const;
    bool HasCell(int row, int column) const;
    void Empty();
    Piece Keep(const QString& text);
    QStringList& Made(int row) const;
    // Notes the lengths of a row's texts; true when one is the longest of its column.
    bool Measure(const QStringList& cells) const;
    // Makes what is not made yet, and goes on as a list that was filled row by row.
    void MakeAll();

    std::vector<ListColumn> headings_;
    // Texts that were replaced stay until the list is emptied.
    std::vector<char16_t> texts_;
    std::vector<Piece> cells_;
    mutable std::vector<qsizetype> longest_;
    // Instead of cells_ while rows are made as they are needed.
    std::function<QStringList(int row)> make_;
    mutable std::unordered_map<int, QStringList> made_;
    int toMake_ = 0;
    int published_ = 0;
    int fills_ = 0;
};

}  // namespace forms
