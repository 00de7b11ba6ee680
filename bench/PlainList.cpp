#include "bench/PlainList.h"

#include <QVBoxLayout>

#include "bench/UntilPainted.h"

namespace bench {

PlainList::PlainList(int columns) : model_(columns) {
    view_.setModel(&model_);
    view_.setRootIsDecorated(false);
    view_.setUniformRowHeights(true);
    (new QVBoxLayout(&window_))->addWidget(&view_);
    window_.resize(1000, 640);
    window_.show();
}

void PlainList::Show(std::vector<QString> texts) {
    model_.Take(std::move(texts));
    UntilPainted{view_};
}

void PlainList::Model::Take(std::vector<QString> texts) {
    beginResetModel();
    texts_ = std::move(texts);
    endResetModel();
}

int PlainList::Model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(texts_.size()) / columns_;
}

QVariant PlainList::Model::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole) return {};
    return texts_[static_cast<size_t>(index.row() * columns_ + index.column())];
}

}  // namespace bench
