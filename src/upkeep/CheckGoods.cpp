#include "upkeep/Check.h"
#include "upkeep/GoodsFaults.h"
#include "upkeep/KnownKeys.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr int Buttons = 320;

void CheckProduct(store::Recordset& product, const GoodsFaults& faults, Findings& findings) {
    const QString code = ShownKey(product[u"ProdCode"].TextOrEmpty());
    const auto quantity = product[u"Qty"];
    if (!quantity.IsNull() && quantity.Money() < values::Money())
        findings.Note(u"products with a stock below zero"_s, code, FindingKind::StockBelowZero);
    const auto button = product[u"Tab"];
    if (!button.IsNull() && button.Whole() >= Buttons)
        findings.Note(u"products on a button that is not there"_s, code, FindingKind::ButtonBeyond);
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
        findings.Note(u"buttons of the click table with more than one product"_s, row[0].TextOrEmpty(),
                      FindingKind::ButtonShared);
}

void CheckRowsOf(store::Database& main, const QString& table, int rowsExpected, Findings& findings) {
    auto rows = main.OpenRecordset(u"SELECT Count(*) AS N FROM [%1]"_s.arg(table));
    const qint64 found = rows[0].Whole();
    if (found != rowsExpected)
        findings.Note(u"tables with more or fewer rows than delivered"_s, u"%1 (%2)"_s.arg(table).arg(found),
                      FindingKind::RowsNotAsDelivered);
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
