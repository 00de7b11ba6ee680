// One product by its code from a server: one way there and back.

#include "bench/Figures.h"
#include "bench/Lookup.h"
#include "bench/ProductRow.h"
#include "bench/RawServer.h"

namespace bench {

namespace {

constexpr auto HandQuery =
    R"(SELECT "ID", "ID", "ProdCode", "ProdDescription", "Qty", "Unit", "UnitPrice", "UnitPricebezPDV", "VPUnitPrice",
    "VPUnitPricebezPDV", "TaxID", "TaxPercent", "Pict", "Tab" FROM "Products"
    WHERE ("ProdCode_folded" = ($1::text COLLATE "C")) ORDER BY "ID")";

Work ByHand(const ServerShop& shop) {
    const auto raw = std::make_shared<RawServer>(shop.Address());
    raw->Prepare("lookup", HandQuery);
    return [raw, codes = Codes(shop.Big())]() mutable {
        const QByteArray code = codes.Next().toUtf8();
        const RawAnswer answer = raw->Ask({"lookup", {code.constData()}});
        return answer.Rows() > 0 ? ReadAsQtValues(answer, 1) : 0;
    };
}

}  // namespace

Figure ServerLookupFigure(const ServerShop& shop) {
    return {.name = "server: lookup by code",
            .ours = [&shop] { return LookUp(store::Place::Server(shop.Address()), shop.Big()); },
            .yardsticks = {{"the same statement by hand in libpq", [&shop] { return ByHand(shop); }, 1.3}},
            .warmUp = 1'000};
}

}  // namespace bench
