#include "upkeep/goods/GoodsColumn.h"

#include <array>

#include "upkeep/Words.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

struct Fact {
    QString field;
    const char* name;
    bool isAmount = false;
};

const Fact& FactOf(GoodsColumn column) {
    static const std::array<Fact, GoodsColumns> facts{{
        {u"ProdCode"_s, QT_TRANSLATE_NOOP("upkeep", "Code")},
        {u"ProdDescription"_s, QT_TRANSLATE_NOOP("upkeep", "Name")},
        {u"Qty"_s, QT_TRANSLATE_NOOP("upkeep", "Quantity"), true},
        {u"Unit"_s, QT_TRANSLATE_NOOP("upkeep", "Unit")},
        {u"UnitPrice"_s, QT_TRANSLATE_NOOP("upkeep", "Price"), true},
        {u"TaxID"_s, QT_TRANSLATE_NOOP("upkeep", "Tax")},
        {u"TaxPercent"_s, QT_TRANSLATE_NOOP("upkeep", "Tax rate"), true},
        {u"Pict"_s, QT_TRANSLATE_NOOP("upkeep", "Picture")},
        {u"Tab"_s, QT_TRANSLATE_NOOP("upkeep", "Group")},
    }};
    return facts[static_cast<size_t>(column)];
}

}  // namespace

const QString& StoreField(GoodsColumn column) {
    return FactOf(column).field;
}

QString ColumnName(GoodsColumn column) {
    return QCoreApplication::translate("upkeep", FactOf(column).name);
}

bool IsAmount(GoodsColumn column) {
    return FactOf(column).isAmount;
}

}  // namespace upkeep
