// One product by its code, as every scan at the till asks for it: a new query text each time, all fields read.

#include "bench/Lookup.h"

#include <QSqlQuery>

#include "bench/Figures.h"
#include "bench/ProductRow.h"
#include "bench/QtSqlStore.h"
#include "store/Database.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

const auto Query = u"SELECT * FROM Products WHERE ProdCode = '%1'"_s;
constexpr auto PreparedQuery = "SELECT * FROM Products WHERE ProdCode = ?";

Work ByHand(const Shop& shop, qint64 (*read)(RawStatement&)) {
    const auto raw = std::make_shared<RawStore>(shop.StorePath());
    const auto statement = std::make_shared<RawStatement>(raw->Prepare(PreparedQuery));
    return [raw, statement, read, codes = Codes(shop)]() mutable {
        const QByteArray code = codes.Next().toUtf8();
        statement->Bind(1, code);
        const qint64 digest = statement->Step() ? read(*statement) : 0;
        statement->Reset();
        return digest;
    };
}

Work ThroughQtSql(const Shop& shop) {
    const auto qtSql = std::make_shared<QtSqlStore>(shop.StorePath());
    return [qtSql, codes = Codes(shop)]() mutable {
        QSqlQuery query(qtSql->Database());
        query.setForwardOnly(true);
        qint64 digest = 0;
        if (!query.exec(Query.arg(codes.Next())) || !query.next()) return digest;
        for (int column = 0; column < ProductColumns; ++column) digest += DigestOf(query.value(column));
        return digest;
    };
}

}  // namespace

Work LookUp(const store::Place& place, const Shop& shop) {
    std::shared_ptr<store::Database> main = store::Database::Open(place, store::MainSchema());
    return [main, codes = Codes(shop)]() mutable {
        auto product = main->OpenRecordset(Query.arg(codes.Next()));
        return ReadByName(product);
    };
}

Figure LookupFigure(const Shop& shop) {
    return {.name = "lookup by code, fresh query text",
            .ours = [&shop] { return LookUp(shop.StorePath(), shop); },
            .yardsticks = {{"raw SQLite, prepared, Qt values", [&shop] { return ByHand(shop, ReadAsQtValues); }, 2},
                           {"raw SQLite, prepared, bare columns", [&shop] { return ByHand(shop, ReadBare); }},
                           {"QSqlQuery, fresh text", [&shop] { return ThroughQtSql(shop); }, 1}},
            .warmUp = 5'000};
}

}  // namespace bench
