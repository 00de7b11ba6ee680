// All products from the first to the last, every field read.

#include <QSqlTableModel>

#include "bench/Figures.h"
#include "bench/ProductRow.h"
#include "bench/QtSqlStore.h"
#include "store/Database.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

Work Ours(const Shop& shop) {
    std::shared_ptr<store::Database> main = store::Database::Open(shop.StorePath(), store::MainSchema());
    return [main] {
        qint64 digest = 0;
        auto products = main->OpenRecordset(u"SELECT * FROM Products"_s);
        for (auto& product : products) digest += ReadByName(product);
        return digest;
    };
}

Work ByHand(const Shop& shop, qint64 (*read)(RawStatement&)) {
    const auto raw = std::make_shared<RawStore>(shop.StorePath());
    const auto statement = std::make_shared<RawStatement>(raw->Prepare("SELECT * FROM Products"));
    return [raw, statement, read] {
        qint64 digest = 0;
        while (statement->Step()) digest += read(*statement);
        statement->Reset();
        return digest;
    };
}

Work ThroughTableModel(const Shop& shop) {
    const auto qtSql = std::make_shared<QtSqlStore>(shop.StorePath());
    return [qtSql] {
        QSqlTableModel model(nullptr, qtSql->Database());
        model.setTable(u"Products"_s);
        model.select();
        while (model.canFetchMore()) model.fetchMore();
        qint64 digest = 0;
        for (int row = 0; row < model.rowCount(); ++row)
            for (int column = 0; column < ProductColumns; ++column)
                digest += DigestOf(model.data(model.index(row, column)));
        return digest;
    };
}

}  // namespace

Figure WalkFigure(const Shop& shop) {
    return {.name = "walk over all products, fields by name",
            .ours = [&shop] { return Ours(shop); },
            .yardsticks = {{"raw SQLite, Qt values", [&shop] { return ByHand(shop, ReadAsQtValues); }, 2},
                           {"raw SQLite, bare columns", [&shop] { return ByHand(shop, ReadBare); }},
                           {"QSqlTableModel", [&shop] { return ThroughTableModel(shop); }, 1}}};
}

}  // namespace bench
