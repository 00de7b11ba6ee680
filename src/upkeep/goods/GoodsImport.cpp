#include "upkeep/goods/GoodsImport.h"

#include <QDir>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "upkeep/GoodsFaults.h"
#include "upkeep/Words.h"
#include "upkeep/goods/ShopGoods.h"
#include "values/Clock.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

constexpr int RowsBetweenLooks = 256;
constexpr qsizetype KeptUndos = 10;

const auto ProductsQuery = u"SELECT * FROM Products"_s;
const auto NameForm = u"'goods-'yyyyMMdd-HHmmss"_s;
const auto Ending = u".json"_s;

QDir UndoFolder(const QString& registerFolder) {
    return QDir(QDir(registerFolder).filePath(u"undo"_s));
}

QStringList UndoFiles(const QString& registerFolder) {
    return UndoFolder(registerFolder).entryList({u"goods-*"_s + Ending}, QDir::Files, QDir::Name);
}

// Amounts as whole ten-thousandths in a text, for a number of that format is a double.
QJsonObject ToJson(const Goods& goods) {
    return {{u"name"_s, goods.name},
            {u"unit"_s, goods.unit},
            {u"tax"_s, goods.tax},
            {u"price"_s, QString::number(goods.price.Units())},
            {u"quantity"_s, QString::number(goods.quantity.Units())}};
}

Goods FromJson(const QJsonObject& json) {
    const auto amount = [&json](const QString& key) { return Money::FromUnits(json[key].toString().toLongLong()); };
    return {.name = json[u"name"].toString(),
            .unit = json[u"unit"].toString(),
            .tax = json[u"tax"].toString(),
            .price = amount(u"price"_s),
            .quantity = amount(u"quantity"_s)};
}

void WriteUndo(const QString& registerFolder, const std::vector<const GoodsRow*>& rows) {
    QJsonArray all;
    for (const GoodsRow* row : rows)
        all += QJsonObject{{u"code"_s, row->code},
                           {u"new"_s, row->kind == GoodsRow::Kind::New},
                           {u"before"_s, ToJson(row->before)},
                           {u"after"_s, ToJson(row->after)}};
    const QDir folder = UndoFolder(registerFolder);
    if (!folder.mkpath(u"."_s))
        throw values::FileError(values::PathFault, Words::tr("The folder %1 can't be made.").arg(folder.path()));
    values::SaveFile(folder.filePath(values::Now().toString(NameForm) + Ending), QJsonDocument(all).toJson());
    QStringList kept = UndoFiles(registerFolder);
    while (kept.size() > KeptUndos) QFile::remove(folder.filePath(kept.takeFirst()));
}

void ForgetUndo(const QString& registerFolder) {
    const QStringList files = UndoFiles(registerFolder);
    if (!files.isEmpty()) QFile::remove(UndoFolder(registerFolder).filePath(files.last()));
}

// The fields of one product, as the till's own screens write them.
class Writer {
public:
    explicit Writer(store::Database& main) : rates_(RatesOf(main)), products_(main.OpenRecordset(ProductsQuery)) {}

    store::Recordset& Products() { return products_; }

    void Add(const QString& code, const Goods& goods) {
        products_.AddNew();
        products_[u"ProdCode"] = code;
        for (const QString& other : {u"UnitPricebezPDV"_s, u"VPUnitPrice"_s, u"VPUnitPricebezPDV"_s})
            products_[other] = Money();
        products_[u"Pict"] = u""_s;
        products_[u"Qty"] = goods.quantity;
        WriteTo(goods);
        products_.Update();
    }

    // Of the product at the cursor; its quantity by the difference.
    void Change(const Goods& before, const Goods& after) {
        const Money quantity = GoodsOf(products_).quantity + after.quantity - before.quantity;
        products_.Edit();
        if (before.quantity != after.quantity) products_[u"Qty"] = quantity;
        WriteTo(after);
        products_.Update();
    }

private:
    void WriteTo(const Goods& goods) {
        products_[u"ProdDescription"] = goods.name;
        products_[u"Unit"] = goods.unit;
        products_[u"UnitPrice"] = goods.price;
        products_[u"TaxID"] = goods.tax;
        if (const auto rate = rates_.constFind(goods.tax.toCaseFolded()); rate != rates_.cend())
            products_[u"TaxPercent"] = *rate;
    }

    const QHash<QString, values::Value> rates_;
    store::Recordset products_;
};

bool IsSameButForQuantity(Goods a, const Goods& b) {
    a.quantity = b.quantity;
    return a == b;
}

void RequireUnchanged(const QStringList& changed) {
    if (changed.isEmpty()) return;
    throw store::StoreError(
        store::RowChanged, Words::tr("Somebody has changed these goods meanwhile, and nothing was written. Look at the "
                                     "table again: %1")
                               .arg(changed.mid(0, 10).join(u", "_s)));
}

}  // namespace

Written ImportGoods(store::Database& main, const QString& registerFolder, const GoodsPreview& preview,
                    const RowProgress& progress) {
    std::vector<const GoodsRow*> rows;
    QHash<QString, const GoodsRow*> changed;
    for (const GoodsRow& row : preview.rows) {
        if (row.kind == GoodsRow::Kind::New || row.kind == GoodsRow::Kind::Changed) rows.push_back(&row);
        if (row.kind == GoodsRow::Kind::Changed) changed.insert(row.code, &row);
    }
    if (rows.empty()) return {};
    Written written;
    int done = 0;
    const auto look = [&] {
        if (progress && ++done % RowsBetweenLooks == 0 && !progress(done, static_cast<int>(rows.size())))
            throw store::StoreError(store::Cancelled, Words::tr("Nothing was written."));
    };
    store::Database::Batch batch(main);
    Writer writer(main);
    QStringList changedMeanwhile;
    for (auto& product : writer.Products()) {
        const GoodsRow* row = changed.take(product[u"ProdCode"].TextOrEmpty());
        if (row == nullptr) continue;
        if (!IsSameButForQuantity(GoodsOf(product), row->before)) {
            changedMeanwhile << row->code;
            continue;
        }
        writer.Change(row->before, row->after);
        ++written.changed;
        look();
    }
    for (auto gone = changed.cbegin(); gone != changed.cend(); ++gone) changedMeanwhile << gone.key();
    RequireUnchanged(changedMeanwhile);
    for (const GoodsRow* row : rows) {
        if (row->kind != GoodsRow::Kind::New) continue;
        writer.Add(row->code, row->after);
        ++written.added;
        look();
    }
    WriteUndo(registerFolder, rows);
    try {
        batch.Commit();
    } catch (...) {
        ForgetUndo(registerFolder);
        throw;
    }
    return written;
}

QDateTime LastImport(const QString& registerFolder) {
    const QStringList files = UndoFiles(registerFolder);
    return files.isEmpty() ? QDateTime() : QDateTime::fromString(files.last().chopped(Ending.size()), NameForm);
}

Written UndoImport(store::Database& main, const QString& registerFolder) {
    const QStringList files = UndoFiles(registerFolder);
    if (files.isEmpty())
        throw values::FileError(values::FileMissing, Words::tr("There is no import that could be undone."));
    QFile file(UndoFolder(registerFolder).filePath(files.last()));
    if (!file.open(QIODevice::ReadOnly)) throw values::FileError(file, u"read '%1'"_s.arg(file.fileName()));
    QHash<QString, QJsonObject> rows;
    const QJsonArray all = QJsonDocument::fromJson(file.readAll()).array();
    for (const auto& one : all) rows.insert(one.toObject()[u"code"].toString(), one.toObject());

    QSet<QString> used;
    for (const QString& query :
         {u"SELECT ProdCode FROM SalesDetails GROUP BY ProdCode"_s, u"SELECT CONsif FROM ProductsCon GROUP BY CONsif"_s,
          u"SELECT SIF FROM ProductsCon GROUP BY SIF"_s}) {
        auto codes = main.OpenSnapshot(query);
        for (auto& code : codes) used << code[0].TextOrEmpty().toCaseFolded();
    }
    Written written;
    store::Database::Batch batch(main);
    Writer writer(main);
    for (auto& product : writer.Products()) {
        const QString code = product[u"ProdCode"].TextOrEmpty();
        const QJsonObject row = rows.take(code);
        if (row.isEmpty()) continue;
        const Goods before = FromJson(row[u"before"].toObject()), after = FromJson(row[u"after"].toObject());
        if (!IsSameButForQuantity(GoodsOf(product), after)) {
            written.leftAlone << Words::tr("%1: somebody has changed it since").arg(code);
        } else if (!row[u"new"].toBool()) {
            writer.Change(after, before);
            ++written.changed;
        } else if (used.contains(code.toCaseFolded())) {
            written.leftAlone << Words::tr("%1: it was sold since, or is part of a composition").arg(code);
        } else {
            product.Delete();
            ++written.removed;
        }
    }
    for (auto gone = rows.cbegin(); gone != rows.cend(); ++gone)
        written.leftAlone << Words::tr("%1: it is no longer there").arg(gone.key());
    batch.Commit();
    file.close();
    file.remove();
    return written;
}

}  // namespace upkeep
