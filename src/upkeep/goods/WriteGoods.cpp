#include "upkeep/goods/WriteGoods.h"

#include <QSet>

#include "upkeep/Findings.h"
#include "upkeep/Words.h"
#include "upkeep/goods/UndoFile.h"
#include "values/Clock.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::Money;
using values::Value;

namespace upkeep {

namespace {

constexpr size_t RowsBetweenQuestions = 64;
// The prices that no screen shows; a new product has them at zero.
const QStringList HiddenPrices{u"UnitPricebezPDV"_s, u"VPUnitPrice"_s, u"VPUnitPricebezPDV"_s};

QString InQuotes(QString text) {
    return u'\'' + text.replace(u'\'', u"''"_s) + u'\'';
}

QString Literal(const Value& value) {
    return value.IsNull() ? u"Null"_s : InQuotes(value.ToText());
}

Money OrZero(const Value& amount) {
    return amount.IsNull() ? Money() : amount.ToMoney();
}

// The store as it is, beside what the changes take it for.
class Comparison {
public:
    explicit Comparison(store::Database& main) : goods_(main), rules_(main) {
        for (const Product& product : goods_.Products())
            if (const Value& button = product[GoodsColumn::Button]; !button.IsNull() && button.ToWhole() >= 0)
                buttons_.insert(button.ToWhole());
    }

    void Look(GoodsChange& change) {
        const Product* product = goods_.Find(change.code);
        if (change.isNew && product != nullptr) return Differs(change, Words::tr("was added"));
        if (!change.isNew && product == nullptr) return Differs(change, Words::tr("was removed"));
        for (ColumnChange& column : change.columns) {
            if (product != nullptr) LookAtValue(*product, change, column);
            LookAtRules(change, column);
        }
    }

    void ThrowDifferences() const {
        if (differences_.isEmpty()) return;
        throw store::StoreError(
            store::RowChanged,
            Words::tr("The shop has changed since it was looked at, and nothing was written: %1. Look again.")
                .arg(FirstFew(differences_)));
    }

    const QStringList& Moved() const { return moved_; }

private:
    void Differs(const GoodsChange& change, const QString& what) {
        differences_ += Words::tr("%1 %2").arg(change.code, what);
    }

    void LookAtValue(const Product& product, const GoodsChange& change, ColumnChange& column) {
        const Value& now = product[column.column];
        if (now == column.before) return;
        if (column.column != GoodsColumn::Quantity || column.after.IsNull())
            return Differs(change, Words::tr("(%1)").arg(ColumnName(column.column)));
        column.after = OrZero(column.after) + OrZero(now) - OrZero(column.before);
        column.before = now;
        moved_ += change.code;
    }

    void LookAtRules(const GoodsChange& change, const ColumnChange& column) {
        if (column.column == GoodsColumn::Tax) {
            const TaxRate* tax = rules_.FindTax(column.after.TextOrEmpty());
            const ColumnChange* rate = change.Find(GoodsColumn::Rate);
            if (tax == nullptr || (rate != nullptr && rate->after != tax->percent))
                Differs(change, Words::tr("(the rate of its tax)"));
        }
        if (column.column == GoodsColumn::Unit && rules_.FindUnit(column.after.TextOrEmpty()) == nullptr)
            Differs(change, Words::tr("(its unit is gone)"));
        if (column.column == GoodsColumn::Button && buttons_.contains(column.after.ToWhole()))
            Differs(change, Words::tr("(its button is another's)"));
    }

    const Assortment goods_;
    const GoodsRules rules_;
    QSet<qint64> buttons_;
    QStringList differences_;
    QStringList moved_;
};

qint64 LastInvoice(store::Database& main) {
    auto row = main.OpenRecordset(u"SELECT Max(Val([InvoiceID])) AS N FROM Invoices"_s);
    return row[0].IsNull() ? 0 : row[0].Whole();
}

void AddProduct(store::Recordset& products, const GoodsChange& change) {
    products.AddNew();
    for (const ColumnChange& column : change.columns) products[StoreField(column.column)] = column.after;
    for (const QString& price : HiddenPrices) products[price] = Money();
    products.Update();
}

}  // namespace

void ChangeProduct(store::Database& main, const GoodsChange& change) {
    QStringList fields;
    for (const ColumnChange& column : change.columns)
        fields += StoreField(column.column) + u" = "_s + Literal(column.after);
    if (fields.isEmpty()) return;
    const qint64 touched =
        main.Execute(u"UPDATE Products SET "_s + fields.join(u", ") + u" WHERE ProdCode = "_s + InQuotes(change.code));
    if (touched != 1)
        throw store::StoreError(store::RowChanged,
                                Words::tr("%1 was removed, and nothing was written.").arg(change.code));
}

void RemoveProduct(store::Database& main, const QString& code) {
    main.Execute(u"DELETE * FROM Products WHERE ProdCode = "_s + InQuotes(code));
}

Written WriteGoods(store::Database& main, const QString& folder, const QString& title,
                   const std::vector<GoodsChange>& changes, const std::function<bool()>& goesOn) {
    Written written;
    if (changes.empty()) return written;
    UndoRecord record{
        .path = {}, .title = title, .time = values::Now(), .lastInvoice = 0, .isCertain = false, .changes = changes};
    store::Database::Batch batch(main);
    Comparison now(main);
    for (GoodsChange& change : record.changes) now.Look(change);
    now.ThrowDifferences();
    written.movedMeanwhile = now.Moved();
    record.lastInvoice = LastInvoice(main);
    const QString undo = KeepForUndo(folder, record);
    try {
        auto products = main.OpenRecordset(u"SELECT * FROM Products WHERE ProdCode = ''"_s);
        size_t done = 0;
        for (const GoodsChange& change : record.changes) {
            if (goesOn && ++done % RowsBetweenQuestions == 0 && !goesOn())
                throw store::StoreError(store::Cancelled, Words::tr("The writing was left; nothing was written."));
            change.isNew ? AddProduct(products, change) : ChangeProduct(main, change);
            ++(change.isNew ? written.added : written.changed);
        }
        batch.Commit();
    } catch (const store::ServerLost&) {
        // It may have been stored or not: what to take back is kept.
        throw;
    } catch (...) {
        DropUndo(undo);
        throw;
    }
    MakeUndoCertain(undo);
    return written;
}

}  // namespace upkeep
