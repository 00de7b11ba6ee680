#include "upkeep/GoodsFaults.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

QString KeyOf(store::Recordset& row, const QString& field) {
    return row[field].TextOrEmpty().toCaseFolded();
}

}  // namespace

QHash<QString, values::Value> RatesOf(store::Database& main) {
    QHash<QString, values::Value> rates;
    auto taxes = main.OpenSnapshot(u"SELECT TaxID, Percent FROM Tax"_s);
    for (auto& tax : taxes) rates.insert(KeyOf(tax, u"TaxID"_s), tax[u"Percent"].Get());
    return rates;
}

GoodsFaults::GoodsFaults(store::Database& main) : rates_(RatesOf(main)) {
    auto units = main.OpenSnapshot(u"SELECT Abr FROM Unit"_s);
    for (auto& unit : units) units_.insert(KeyOf(unit, u"Abr"_s));
}

std::optional<GoodsFault> GoodsFaults::FaultOfTax(store::Recordset& product) const {
    const auto rate = rates_.constFind(KeyOf(product, u"TaxID"_s));
    if (rate == rates_.cend()) return GoodsFault{FindingKind::GoodsWithoutTax, u"goods with a tax that is not there"_s};
    const values::Value percent = product[u"TaxPercent"].Get();
    if (percent.IsNull() || percent == rate.value()) return {};
    return GoodsFault{FindingKind::GoodsWithOtherRate, u"goods with another rate than that of their tax"_s};
}

std::vector<GoodsFault> GoodsFaults::Of(store::Recordset& product) const {
    const QString code = product[u"ProdCode"].TextOrEmpty();
    const std::pair<bool, GoodsFault> faults[] = {
        {product[u"TaxPercent"].IsNull(),
         {FindingKind::GoodsWithoutRate, u"goods without a tax rate, which can't be sold"_s}},
        {product[u"UnitPrice"].IsNull(),
         {FindingKind::GoodsWithoutPrice, u"goods without a price, which can't be sold"_s}},
        {code.contains(u'\''),
         {FindingKind::CodeWithApostrophe, u"goods with an apostrophe in the code, which can't be looked up"_s}},
        {code.startsWith(u' ') || code.endsWith(u' '),
         {FindingKind::CodeWithBlanks, u"goods with blanks at an end of the code"_s}},
        {code.size() > LongestCode, {FindingKind::CodeTooLong, u"goods with a code longer than its box"_s}},
        {product[u"ProdDescription"].TextOrEmpty().size() > LongestName,
         {FindingKind::NameTooLong, u"goods with a name longer than its box"_s}},
        {!units_.contains(KeyOf(product, u"Unit"_s)),
         {FindingKind::GoodsWithoutUnit, u"goods with a unit that is not there"_s}},
    };
    std::vector<GoodsFault> found;
    for (const auto& [isFault, fault] : faults)
        if (isFault) found.push_back(fault);
    if (const auto fault = FaultOfTax(product)) found.push_back(*fault);
    return found;
}

}  // namespace upkeep
