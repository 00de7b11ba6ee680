#include "upkeep/goods/GoodsUndo.h"

#include <QSet>
#include <algorithm>

#include "upkeep/KnownKeys.h"
#include "upkeep/Words.h"
#include "upkeep/goods/UndoFile.h"
#include "upkeep/goods/WriteGoods.h"

using namespace Qt::StringLiterals;
using values::Money;
using values::Value;

namespace upkeep {

namespace {

// A tax and its rate are one thing.
bool AreOne(GoodsColumn a, GoodsColumn b) {
    const auto isOfTax = [](GoodsColumn column) { return column == GoodsColumn::Tax || column == GoodsColumn::Rate; };
    return a == b || (isOfTax(a) && isOfTax(b));
}

class Undoing {
public:
    Undoing(store::Database& main, const UndoRecord& record) : main_(main), record_(record), goods_(main) {
        for (const Product& product : goods_.Products())
            if (const Value& button = product[GoodsColumn::Button]; !button.IsNull()) buttons_.insert(button.ToWhole());
        const bool hasNew = std::ranges::any_of(record.changes, &GoodsChange::isNew);
        if (hasNew) LookForUse();
    }

    Undone Run() {
        undone_.title = record_.title;
        for (const GoodsChange& change : record_.changes) {
            const Product* product = goods_.Find(change.code);
            if (change.isNew && product != nullptr) Remove(*product, change);
            if (!change.isNew && product != nullptr) Restore(*product, change);
            if (!change.isNew && product == nullptr) Keep(change, Words::tr("It was removed since."));
        }
        return undone_;
    }

private:
    void LookForUse() {
        auto sold =
            main_.OpenSnapshot(u"SELECT ProdCode FROM SalesDetails WHERE Val([InvoiceID]) > %1 GROUP BY ProdCode"_s.arg(
                record_.lastInvoice));
        for (auto& row : sold) sold_.Meet(row[0].TextOrEmpty());
        auto parts = main_.OpenSnapshot(u"SELECT SIF, CONsif FROM ProductsCon"_s);
        for (auto& row : parts)
            for (const int column : {0, 1}) parts_.Meet(row[column].TextOrEmpty());
    }

    void Keep(const GoodsChange& change, const QString& why) {
        undone_.kept += Words::tr("%1: %2").arg(change.code, why);
    }

    void Remove(const Product& product, const GoodsChange& change) {
        if (sold_.Contains(change.code)) return Keep(change, Words::tr("It stays, since it has been sold."));
        if (parts_.Contains(change.code))
            return Keep(change, Words::tr("It stays, since it is part of a composition."));
        for (const ColumnChange& column : change.columns)
            if (product[column.column] != column.after)
                return Keep(change, Words::tr("It stays, since its %1 was changed.").arg(ColumnName(column.column)));
        RemoveProduct(main_, change.code);
        ++undone_.removed;
    }

    // Whether nobody has changed since what a column, or what is one with it, was given.
    static bool IsAsWritten(const Product& product, const GoodsChange& change, GoodsColumn column) {
        return std::ranges::all_of(change.columns, [&](const ColumnChange& other) {
            return !AreOne(column, other.column) || product[other.column] == other.after;
        });
    }

    void Restore(const Product& product, const GoodsChange& change) {
        GoodsChange back{.code = product.Code(), .isNew = false, .columns = {}};
        for (const ColumnChange& column : change.columns) {
            const Value& now = product[column.column];
            if (column.column == GoodsColumn::Quantity && !now.IsNull() && !column.before.IsNull() &&
                !column.after.IsNull())
                back.Set(column.column, now, now.ToMoney() - column.after.ToMoney() + column.before.ToMoney());
            else if (now == column.before)
                continue;
            else if (!IsAsWritten(product, change, column.column))
                Keep(change, Words::tr("Its %1 stays, since it was changed.").arg(ColumnName(column.column)));
            else if (IsTaken(column))
                Keep(change, Words::tr("It stays on its button, since its old one is another's."));
            else
                back.Set(column.column, now, column.before);
        }
        if (back.columns.empty()) return;
        ChangeProduct(main_, back);
        ++undone_.restored;
    }

    bool IsTaken(const ColumnChange& column) {
        if (column.column != GoodsColumn::Button || column.before.IsNull() || column.before.ToWhole() < 0) return false;
        return buttons_.contains(column.before.ToWhole());
    }

    store::Database& main_;
    const UndoRecord& record_;
    const Assortment goods_;
    QSet<qint64> buttons_;
    DistinctKeys sold_;
    DistinctKeys parts_;
    Undone undone_;
};

// A writing that nobody knows of was stored where more columns are as it wrote them than as they were before.
bool LooksWritten(const UndoRecord& record, const Assortment& goods) {
    qint64 score = 0;
    for (const GoodsChange& change : record.changes) {
        const Product* product = goods.Find(change.code);
        if (change.isNew) score += product != nullptr ? 1 : -1;
        if (change.isNew || product == nullptr) continue;
        for (const ColumnChange& column : change.columns) {
            const Value& now = (*product)[column.column];
            score += now == column.after ? 1 : now == column.before ? -1 : 0;
        }
    }
    return score > 0;
}

}  // namespace

Undone UndoGoods(store::Database& main, const QString& folder) {
    store::Database::Batch batch(main);
    for (;;) {
        const auto record = LastUndo(folder);
        if (!record) throw store::StoreError(store::ItemNotFound, Words::tr("There is nothing to take back."));
        if (!record->isCertain && !LooksWritten(*record, Assortment(main))) {
            DropUndo(record->path);
            continue;
        }
        Undone undone = Undoing(main, *record).Run();
        batch.Commit();
        DropUndo(record->path);
        return undone;
    }
}

}  // namespace upkeep
