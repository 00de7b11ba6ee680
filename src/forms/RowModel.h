#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "forms/ListView.h"

namespace forms {

// Rows of texts in one flat array. Rows added while filling exist at once for whoever asks here, but the view learns of
// them, all together, when the filling ends.
class RowModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetColumns(const std::vector<ListColumn>& columns);

    int Count() const;
    void Clear();
    int Add(QStringList cells);
    void Remove(int row);
    const QString* Cell(int row, int column) const;
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

private:
    size_t Width() const { return headings_.size(); }

    std::vector<ListColumn> headings_;
    std::vector<QString> cells_;
    std::vector<qsizetype> longest_;
    int published_ = 0;
    int fills_ = 0;
};

}  // namespace forms
