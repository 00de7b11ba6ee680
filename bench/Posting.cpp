// The commits that posting an invoice of twenty lines makes: the invoice, for each line the stock and the line itself,
// the period. Until the last is done they are in the log only; then the log is brought to the disk once.

#include "bench/Figures.h"
#include "bench/PostingTill.h"
#include "bench/RawStore.h"
#include "store/StorePath.h"
#include "values/Money.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace bench {

namespace {

constexpr int LineCount = 20;
constexpr int PostingsEach = 50;

Work Ours(const Shop& shop, const QString& folder) {
    Invoices invoice(shop.Products(), LineCount);
    const auto till = std::make_shared<PostingTill>(folder, invoice.Period());
    return [till, invoice]() mutable {
        invoice.Next();
        till->Post(invoice);
        return qint64{invoice.Commits()};
    };
}

// The same rows with statements prepared once and nothing looked at that need not be.
class HandStore {
public:
    explicit HandStore(const QString& path)
        : raw_(path),
          addInvoice_(raw_.Prepare("INSERT INTO Invoices (Kas, SalesID, InvoiceID, OrNo, CashierID, CashierName, "
                                   "PaymentType, DateSold, TimeSold, CashAmount, TaxTotal, CheckAmount, CheckNo, Bank, "
                                   "Kupac, IB) VALUES (0, '1', ?1, ?1, '2', 'kasir', 0, ?2, ?3, ?4, 0, 0, 0, ' ', '', "
                                   "'')")),
          takeOffStock_(raw_.Prepare("UPDATE Products SET Qty = Qty - ?1 WHERE ProdCode = ?2")),
          addLine_(raw_.Prepare("INSERT INTO SalesDetails (Kas, InvoiceID, ProdCode, ProdDescription, UnitPrice, "
                                "QtySold, Amount, TaxPercent, TaxAmount, Unit, TaxID) VALUES (0, ?1, ?2, ?3, ?4, ?5, "
                                "?4, ?6, ?7, ?8, ?9)")),
          changePeriod_(raw_.Prepare("UPDATE Sales SET TotalSales = ?1, DateStoped = ?2, TimeStoped = ?3 WHERE "
                                     "SalesID = '1'")) {}

    void Post(const Invoices& invoice) {
        AddInvoice(invoice);
        for (int i = 0; i < LineCount; ++i) AddLine(invoice, invoice.Line(i));
        changePeriod_.Bind(1, invoice.Total());
        changePeriod_.Bind(2, invoice.Day().toJulianDay());
        changePeriod_.Bind(3, invoice.Time().msecsSinceStartOfDay() / 1000);
        Run(changePeriod_);
        raw_.SyncLog();
    }

    qint64 ChangedRows() const { return raw_.ChangedRows(); }

private:
    static void Run(RawStatement& statement) {
        statement.Step();
        statement.Reset();
    }

    void AddInvoice(const Invoices& invoice) {
        const QByteArray number = invoice.Number().toUtf8();
        addInvoice_.Bind(1, number);
        addInvoice_.Bind(2, invoice.Day().toJulianDay());
        addInvoice_.Bind(3, invoice.Time().msecsSinceStartOfDay() / 1000);
        addInvoice_.Bind(4, invoice.Total());
        Run(addInvoice_);
    }

    void AddLine(const Invoices& invoice, const Goods& goods) {
        const QByteArray number = invoice.Number().toUtf8();
        const QByteArray code = goods.code.toUtf8();
        const QByteArray name = goods.name.toUtf8();
        const QByteArray unit = goods.unit.toUtf8();
        const QByteArray tax = goods.TaxID().toUtf8();
        takeOffStock_.Bind(1, Money::Scale);
        takeOffStock_.Bind(2, code);
        Run(takeOffStock_);
        addLine_.Bind(1, number);
        addLine_.Bind(2, code);
        addLine_.Bind(3, name);
        addLine_.Bind(4, goods.price);
        addLine_.Bind(5, Money::Scale);
        addLine_.Bind(6, goods.TaxPercent());
        addLine_.Bind(7, goods.TaxIn(goods.price));
        addLine_.Bind(8, unit);
        addLine_.Bind(9, tax);
        Run(addLine_);
    }

    RawStore raw_;
    RawStatement addInvoice_, takeOffStock_, addLine_, changePeriod_;
};

Work ByHand(const Shop& shop, const QString& till) {
    const auto store = std::make_shared<HandStore>(store::MainPlace(till).Path());
    return [store, invoice = Invoices(shop.Products(), LineCount)]() mutable {
        const qint64 before = store->ChangedRows();
        invoice.Next();
        store->Post(invoice);
        return store->ChangedRows() - before;
    };
}

}  // namespace

Figure PostingFigure(const Shop& shop, const QString& till) {
    return {.name = "post 20 lines, 42 commits in a burst",
            .ours = [&shop, till] { return Ours(shop, till); },
            .yardsticks = {{"raw SQLite by hand", [&shop, till] { return ByHand(shop, till); }, 1.5}},
            .warmUp = 10,
            .iterations = PostingsEach};
}

}  // namespace bench
