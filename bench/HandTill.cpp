#include "bench/HandTill.h"

#include "values/Money.h"

namespace bench {

namespace {

// The keys of the locks are those of the schema "velton".
constexpr std::pair<const char*, const char*> Statements[] = {
    {"relax", "SET synchronous_commit = off"},
    {"durably", "SET synchronous_commit = on"},
    {"flush", "SELECT setval('velton_burst', 1)"},
    {"lock", "SELECT pg_advisory_xact_lock_shared(695321261, 0)"},
    {"lock_invoices", "SELECT pg_advisory_xact_lock_shared(695321261, 0), pg_advisory_xact_lock(695321261, 442087417)"},
    {"lock_lines", "SELECT pg_advisory_xact_lock_shared(695321261, 0), pg_advisory_xact_lock(695321261, -1832656353)"},
    {"find_period", R"(SELECT "RowKey" FROM "Sales" WHERE ("SalesID_folded" = ($1::text COLLATE "C")))"},
    {"add_invoice",
     R"(INSERT INTO "Invoices" ("Kas", "SalesID", "InvoiceID", "OrNo", "CashierID", "CashierName", "PaymentType",
    "DateSold", "TimeSold", "CashAmount", "TaxTotal", "CheckAmount", "CheckNo", "Bank", "Kupac", "IB") SELECT
    $1::bigint, $2::text, $3::text, $4::text, $5::text, $6::text, $7::bigint, $8::bigint, $9::bigint, $10::bigint,
    $11::bigint, $12::bigint, $13::bigint, $14::text, $15::text, $16::text RETURNING "RowKey")"},
    {"find_product",
     R"(SELECT "ID", "ID", "ProdCode", "ProdDescription", "Qty", "Unit", "UnitPrice", "UnitPricebezPDV", "VPUnitPrice",
    "VPUnitPricebezPDV", "TaxID", "TaxPercent", "Pict", "Tab" FROM "Products"
    WHERE ("ProdCode_folded" = ($1::text COLLATE "C")) ORDER BY "ID")"},
    {"find_parts", R"(SELECT "RowKey", "SIF", "CONsif", "ConSIFQty" FROM "ProductsCon"
    WHERE ("SIF_folded" = ($1::text COLLATE "C")) ORDER BY "RowKey")"},
    {"read_product",
     R"(SELECT "ID", "ID", "ProdCode", "ProdDescription", "Qty", "Unit", "UnitPrice", "UnitPricebezPDV", "VPUnitPrice",
    "VPUnitPricebezPDV", "TaxID", "TaxPercent", "Pict", "Tab" FROM "Products" WHERE "ID" = $1::bigint)"},
    {"change_product",
     R"(UPDATE "Products" SET "Qty" = $1::bigint WHERE "ID" = $2::bigint AND "ID" IS NOT DISTINCT FROM $3::bigint
    AND "ProdCode" IS NOT DISTINCT FROM $4::text AND "ProdDescription" IS NOT DISTINCT FROM $5::text
    AND "Qty" IS NOT DISTINCT FROM $6::bigint AND "Unit" IS NOT DISTINCT FROM $7::text
    AND "UnitPrice" IS NOT DISTINCT FROM $8::bigint AND "UnitPricebezPDV" IS NOT DISTINCT FROM $9::bigint
    AND "VPUnitPrice" IS NOT DISTINCT FROM $10::bigint AND "VPUnitPricebezPDV" IS NOT DISTINCT FROM $11::bigint
    AND "TaxID" IS NOT DISTINCT FROM $12::text AND "TaxPercent" IS NOT DISTINCT FROM $13::bigint
    AND "Pict" IS NOT DISTINCT FROM $14::text AND "Tab" IS NOT DISTINCT FROM $15::bigint)"},
    {"add_line",
     R"(INSERT INTO "SalesDetails" ("Kas", "InvoiceID", "ProdCode", "ProdDescription", "UnitPrice", "QtySold", "Amount",
    "TaxPercent", "TaxAmount", "Unit", "TaxID") SELECT $1::bigint, $2::text, $3::text, $4::text, $5::bigint, $6::bigint,
    $7::bigint, $8::bigint, $9::bigint, $10::text, $11::text RETURNING "RowKey")"},
    {"read_period",
     R"(SELECT "RowKey", "SalesID", "Kas", "UserID", "DateGenerated", "TimeGenerated", "TotalSales", "DateStoped",
    "TimeStoped", "Closed", "Payed", "Grupni" FROM "Sales" WHERE "RowKey" = $1::bigint)"},
    {"change_period",
     R"(UPDATE "Sales" SET "TotalSales" = $1::bigint, "DateStoped" = $2::bigint, "TimeStoped" = $3::bigint
    WHERE "RowKey" = $4::bigint)"},
};

QByteArray DayOf(const Invoices& invoice) {
    return QByteArray::number(invoice.Day().toJulianDay());
}

QByteArray TimeOf(const Invoices& invoice) {
    return QByteArray::number(invoice.Time().msecsSinceStartOfDay() / 1000);
}

}  // namespace

HandTill::HandTill(const QString& address, const QString& period) : raw_(address) {
    for (const auto& [name, sql] : Statements) raw_.Prepare(name, sql);
    const QByteArray code = period.toUtf8();
    period_ = raw_.Ask({"find_period", {code.constData()}}).Bytes(0, 0);
}

qint64 HandTill::Post(const Invoices& invoice) {
    qint64 written = AddInvoice(invoice);
    for (int i = 0; i < invoice.Lines(); ++i) {
        written += TakeOffStock(invoice.Line(i));
        written += AddLine(invoice, invoice.Line(i));
    }
    written += ChangePeriod(invoice);
    raw_.AskTogether({{"durably"}, {"flush"}});
    return written;
}

qint64 HandTill::AddInvoice(const Invoices& invoice) {
    const QByteArray period = invoice.Period().toUtf8(), number = invoice.Number().toUtf8();
    const QByteArray day = DayOf(invoice), time = TimeOf(invoice), total = QByteArray::number(invoice.Total());
    return raw_
        .AskTogether({{"relax"},
                      {"lock_invoices"},
                      {"add_invoice",
                       {"0", period.constData(), number.constData(), number.constData(), "2", "kasir", "0",
                        day.constData(), time.constData(), total.constData(), "0", "0", "0", " ", "", ""}}})
        .Affected();
}

// The row is found, read again to be changed, changed if it is still the same, and read once more.
qint64 HandTill::TakeOffStock(const Goods& goods) {
    constexpr int columns = 14;
    constexpr int quantity = 4;
    const QByteArray code = goods.code.toUtf8();
    const RawAnswer found = raw_.Ask({"find_product", {code.constData()}});
    raw_.Ask({"find_parts", {code.constData()}});
    const char* row = found.Bytes(0, 0);
    const RawAnswer product = raw_.Ask({"read_product", {row}});
    const QByteArray left = QByteArray::number(product.Integer(0, quantity) - values::Money::Scale);
    std::vector<const char*> values = {left.constData(), row};
    for (int column = 1; column < columns; ++column) values.push_back(product.Bytes(0, column));
    const qint64 written = raw_.AskTogether({{"lock"}, {"change_product", values}}).Affected();
    raw_.Ask({"read_product", {row}});
    return written;
}

qint64 HandTill::AddLine(const Invoices& invoice, const Goods& goods) {
    const QByteArray number = invoice.Number().toUtf8(), code = goods.code.toUtf8(), name = goods.name.toUtf8();
    const QByteArray price = QByteArray::number(goods.price), one = QByteArray::number(values::Money::Scale);
    const QByteArray percent = QByteArray::number(goods.TaxPercent());
    const QByteArray tax = QByteArray::number(goods.TaxIn(goods.price));
    const QByteArray unit = goods.unit.toUtf8(), taxId = goods.TaxID().toUtf8();
    return raw_
        .AskTogether({{"lock_lines"},
                      {"add_line",
                       {"0", number.constData(), code.constData(), name.constData(), price.constData(), one.constData(),
                        price.constData(), percent.constData(), tax.constData(), unit.constData(), taxId.constData()}}})
        .Affected();
}

qint64 HandTill::ChangePeriod(const Invoices& invoice) {
    raw_.Ask({"read_period", {period_.constData()}});
    const QByteArray day = DayOf(invoice), time = TimeOf(invoice), total = QByteArray::number(invoice.Total());
    return raw_
        .AskTogether(
            {{"lock"}, {"change_period", {total.constData(), day.constData(), time.constData(), period_.constData()}}})
        .Affected();
}

}  // namespace bench
