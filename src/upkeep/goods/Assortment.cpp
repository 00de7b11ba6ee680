#include "upkeep/goods/Assortment.h"

#include <limits>

#include "store/CaseFold.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

QString GoodsQuery() {
    QStringList fields;
    for (size_t i = 0; i < GoodsColumns; ++i) fields += StoreField(static_cast<GoodsColumn>(i));
    return u"SELECT "_s + fields.join(u", ") + u" FROM Products"_s;
}

}  // namespace

QByteArray KeyOf(const QString& text) {
    return store::FoldedText(text.toUtf8());
}

Assortment::Assortment(store::Database& main) {
    auto listing = main.ReadListing(GoodsQuery());
    const qint64 count = listing.WaitFor(std::numeric_limits<qint64>::max());
    products_.resize(static_cast<size_t>(count));
    places_.reserve(static_cast<qsizetype>(count));
    for (qint64 row = 0; row < count; ++row) {
        Product& product = products_[static_cast<size_t>(row)];
        for (size_t i = 0; i < GoodsColumns; ++i) product.fields[i] = listing.At(row, static_cast<int>(i));
        places_.insert(KeyOf(product.Code()), static_cast<size_t>(row));
    }
}

const Product* Assortment::Find(const QString& code) const {
    const auto found = places_.constFind(KeyOf(code));
    return found == places_.cend() ? nullptr : &products_[*found];
}

}  // namespace upkeep
