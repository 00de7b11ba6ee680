#include "upkeep/GoodsFaults.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

QString KeyOf(store::Recordset& row, const QString& field) {
    return row[field].TextOrEmpty().toCaseFolded();
}

}  // namespace

GoodsFaults::GoodsFaults(store::Database& main) {
    auto taxes = main.OpenSnapshot(u"SELECT TaxID, Percent FROM Tax"_s);
    for (auto& tax : taxes) rates_.insert(KeyOf(tax, u"TaxID"_s), tax[u"Percent"].Get());
    auto units = main.OpenSnapshot(u"SELECT Abr FROM Unit"_s);
    for (auto& unit : units) units_.insert(KeyOf(unit, u"Abr"_s));
}

QString GoodsFaults::FaultOfTax(store::Recordset& product) const {
    const auto rate = rates_.constFind(KeyOf(product, u"TaxID"_s));
    if (rate == rates_.cend()) return u"goods with a tax that is not there"_s;
    const values::Value percent = product[u"TaxPercent"].Get();
    if (percent.IsNull() || percent == rate.value()) return {};
    return u"goods with another rate than that of their tax"_s;
}

QStringList GoodsFaults::Of(store::Recordset& product) const {
    const QString code = product[u"ProdCode"].TextOrEmpty();
    const std::pair<bool, QString> faults[] = {
        {product[u"TaxPercent"].IsNull(), u"goods without a tax rate, which can't be sold"_s},
        {product[u"UnitPrice"].IsNull(), u"goods without a price, which can't be sold"_s},
        {code.contains(u'\''), u"goods with an apostrophe in the code, which can't be looked up"_s},
        {code.startsWith(u' ') || code.endsWith(u' '), u"goods with blanks at an end of the code"_s},
        {code.size() > LongestCode, u"goods with a code longer than its box"_s},
        {product[u"ProdDescription"].TextOrEmpty().size() > LongestName, u"goods with a name longer than its box"_s},
        {!units_.contains(KeyOf(product, u"Unit"_s)), u"goods with a unit that is not there"_s},
    };
    QStringList found;
    for (const auto& [isFault, words] : faults)
        if (isFault) found.append(words);
    if (const QString fault = FaultOfTax(product); !fault.isEmpty()) found.append(fault);
    return found;
}

}  // namespace upkeep
