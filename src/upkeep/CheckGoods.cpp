#include "upkeep/Check.h"
#include "upkeep/GoodsFaults.h"
#include "upkeep/KnownKeys.h"
#include "upkeep/RowCount.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr int Buttons = 320;

void CheckProduct(store::Recordset& product, const GoodsFaults& faults, Findings& findings) {
    const QString code = ShownKey(product[u"ProdCode"].TextOrEmpty());
    const auto quantity = product[u"Qty"];
    if (!quantity.IsNull() && quantity.Money() < values::Money())
        findings.Note(QT_TRANSLATE_NOOP("upkeep", "products with a stock below zero"), code,
                      FindingKind::StockBelowZero);
    const auto button = product[u"Tab"];
    if (!button.IsNull() && button.Whole() >= Buttons)
        findings.Note(QT_TRANSLATE_NOOP("upkeep", "products on a button that is not there"), code,
                      FindingKind::ButtonBeyond);
    for (const GoodsFault& fault : faults.Of(product)) findings.Note(fault.words, code, fault.kind);
}

void CheckProducts(store::Database& main, Findings& findings) {
    const GoodsFaults faults(main);
    auto products = main.OpenSnapshot(
        u"SELECT ProdCode, ProdDescription, Qty, Unit, UnitPrice, TaxID, TaxPercent, Tab FROM Products"_s);
    for (auto& product : products) {
        ++findings.extent.goods;
        CheckProduct(product, faults, findings);
    }
}

void CheckButtons(store::Database& main, Findings& findings) {
    auto rows =
        main.OpenSnapshot(u"SELECT Tab, Count(*) AS N FROM Products WHERE Tab > -1 GROUP BY Tab HAVING Count(*) > 1"_s);
    for (auto& row : rows)
        findings.Note(QT_TRANSLATE_NOOP("upkeep", "buttons of the click table with more than one product"),
                      row[0].TextOrEmpty(), FindingKind::ButtonShared);
}

void CheckRowsOf(store::Database& main, const QString& table, int rowsExpected, Findings& findings) {
    const qint64 found = CountRows(main, table);
    if (found != rowsExpected)
        findings.Note(QT_TRANSLATE_NOOP("upkeep", "tables with more or fewer rows than delivered"),
                      u"%1 (%2)"_s.arg(table).arg(found), FindingKind::RowsNotAsDelivered);
}

}  // namespace

void CheckGoods(store::Database& main, const DistinctKeys& products, Findings& findings) {
    CheckProducts(main, findings);
    CheckButtons(main, findings);
    for (const TableField& field : {TableField{u"ProductsCon"_s, u"SIF"_s}, TableField{u"ProductsCon"_s, u"CONsif"_s}})
        NoteUnknown(field.Name(), KeysOf(main, field), u"Products.ProdCode"_s, products, FindingKind::ComposedGoodsGone,
                    findings);
    CheckRowsOf(main, u"TabControl"_s, 10, findings);
    CheckRowsOf(main, u"Company"_s, 1, findings);
}

}  // namespace upkeep
