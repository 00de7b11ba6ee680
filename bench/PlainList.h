#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <QTreeView>
#include <QWidget>
#include <vector>

namespace bench {

// What a Qt program would show rows of texts in, with no more around it: a window with a tree view on a bare model.
class PlainList {
public:
    explicit PlainList(int columns);

    // Takes the place of what the list held; the texts are row by row.
    void Show(std::vector<QString> texts);

private:
    class Model : public QAbstractTableModel {
    public:
        explicit Model(int columns) : columns_(columns) {}
        void Take(std::vector<QString> texts);
        int rowCount(const QModelIndex& parent) const override;
        int columnCount(const QModelIndex&) const override { return columns_; }
        QVariant data(const QModelIndex& index, int role) const override;

    private:
        int columns_;
        std::vector<QString> texts_;
    };

    Model model_;
    QWidget window_;
    QTreeView view_;
};

}  // namespace bench
