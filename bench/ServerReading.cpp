// A report over a month, and a cursor on a whole table, from a server.

#include "bench/Figures.h"
#include "bench/Opening.h"
#include "bench/RawServer.h"
#include "bench/TaxReport.h"

namespace bench {

namespace {

// The engine's own text, and the report as somebody would write it who knows nothing of the engine's columns.
constexpr auto SameReport =
    R"(SELECT min("Tax"."TaxID" COLLATE "C"), min("Tax"."Name" COLLATE "C"), "Tax"."Percent", "Invoices"."DateSold",
    (sum("SalesDetails"."TaxAmount")::bigint), (sum("SalesDetails"."Amount")::bigint),
    ((sum("SalesDetails"."Amount")::bigint)::numeric - (sum("SalesDetails"."TaxAmount")::bigint)) FROM ("Invoices"
    INNER JOIN ("SalesDetails" INNER JOIN "Tax" ON ("SalesDetails"."TaxID_folded" = "Tax"."TaxID_folded")) ON
    ("Invoices"."InvoiceID_folded" = "SalesDetails"."InvoiceID_folded")) WHERE (("Invoices"."DateSold" >= ($1::bigint))
    AND ("Invoices"."DateSold" <= ($2::bigint))) GROUP BY "Invoices"."DateSold", "Tax"."TaxID_folded",
    "Tax"."Name_folded", "Tax"."Percent" ORDER BY "Invoices"."DateSold" NULLS FIRST, "Tax"."TaxID_folded" NULLS FIRST,
    "Tax"."Name_folded" NULLS FIRST, "Tax"."Percent" NULLS FIRST)";
constexpr auto PlainReport =
    R"(SELECT t."TaxID", t."Name", t."Percent", i."DateSold", sum(d."TaxAmount"), sum(d."Amount"),
    sum(d."Amount") - sum(d."TaxAmount") FROM "Invoices" i JOIN "SalesDetails" d ON d."InvoiceID" = i."InvoiceID"
    JOIN "Tax" t ON t."TaxID" = d."TaxID" WHERE i."DateSold" BETWEEN $1::bigint AND $2::bigint
    GROUP BY i."DateSold", t."TaxID", t."Name", t."Percent")";

const QDate From = Shop::DayAt(0.4);
const QDate To = From.addMonths(1).addDays(-1);

Work ReportByHand(const ServerShop& shop, const char* sql) {
    const auto raw = std::make_shared<RawServer>(shop.Address());
    raw->Prepare("report", sql);
    return [raw] {
        const QByteArray from = QByteArray::number(From.toJulianDay()), to = QByteArray::number(To.toJulianDay());
        const RawAnswer answer = raw->Ask({"report", {from.constData(), to.constData()}});
        qint64 digest = 0;
        for (int row = 0; row < answer.Rows(); ++row) {
            digest += answer.Text(row, 0)[0].unicode() + answer.Text(row, 1)[0].unicode();
            for (int column = 2; column < 7; ++column) digest += answer.Integer(row, column);
        }
        return digest;
    };
}

}  // namespace

Figure ServerTaxReportFigure(const ServerShop& shop) {
    return {
        .name = "server: tax report of a month",
        .ours = [&shop] { return ReadTaxReport(store::Place::Server(shop.Address()), From, To); },
        .yardsticks = {{"the same statement by hand in libpq", [&shop] { return ReportByHand(shop, SameReport); }, 1.2},
                       {"plain SQL on the same tables", [&shop] { return ReportByHand(shop, PlainReport); }}}};
}

Figure ServerOpeningFigure(const ServerShop& shop) {
    return {.name = "server: open a cursor on all invoice lines",
            .ours = [&shop] { return OpenLines(store::Place::Server(shop.Address())); },
            .yardsticks = {{"the same on " + std::to_string(shop.Small().Size().lines) + " lines",
                            [&shop] { return OpenLines(store::Place::Server(shop.SmallAddress())); }, 1.2}},
            .warmUp = 100};
}

}  // namespace bench
