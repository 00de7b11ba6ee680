// The commits that posting an invoice of twenty lines makes: the invoice, for each line the stock and the line itself,
// the period. Until the last is done they are in the log only; then the log is brought to the disk once.

#include "bench/Figures.h"
#include "bench/RawStore.h"
#include "core/dbModule.h"
#include "output/Folder.h"
#include "sales/Stock.h"
#include "store/StorePath.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace bench {

namespace {

constexpr int LineCount = 20;
constexpr int Commits = 1 + 2 * LineCount + 1;
constexpr int PostingsEach = 50;
constexpr int FirstNumber = 10'000'000;  // far above the invoices of the shop

// Invoices to post, the same for every contestant.
class Invoices {
public:
    explicit Invoices(const Shop& shop) : products_(shop.Products()) {}

    int Number() const { return number_; }
    void Next() { ++number_; }
    const Goods& Line(int line) const {
        return products_[static_cast<size_t>(number_ * LineCount + line) * 7919 % products_.size()];
    }
    qint64 Total() const {
        qint64 total = 0;
        for (int i = 0; i < LineCount; ++i) total += Line(i).price;
        return total;
    }

private:
    const std::vector<Goods>& products_;
    int number_ = FirstNumber;
};

const QDate Day(2026, 1, 2);
const QTime Noon(12, 0);

// The till's cursors, open as long as the sales screen is.
class TillStore {
public:
    explicit TillStore(const QString& folder) {
        output::SetProgramFolder(folder);
        OpenMainStore();
        invoices_ = MainStore().OpenRecordset(u"SELECT * FROM Invoices"_s);
        lines_ = MainStore().OpenRecordset(u"SELECT * FROM SalesDetails"_s);
        period_ = MainStore().OpenRecordset(u"SELECT * FROM Sales WHERE SalesID = '1'"_s);
    }
    ~TillStore() {
        for (auto* cursor : {&invoices_, &lines_, &period_}) cursor->Close();
        CloseStores();
    }
    TillStore(const TillStore&) = delete;
    TillStore& operator=(const TillStore&) = delete;

    void Post(const Invoices& invoice) {
        store::Burst burst(MainStore());
        AddInvoice(invoice);
        for (int i = 0; i < LineCount; ++i) AddLine(invoice.Number(), invoice.Line(i));
        period_.Edit();
        period_[u"TotalSales"] = Money::FromUnits(invoice.Total());
        period_[u"DateStoped"] = Day;
        period_[u"TimeStoped"] = Noon;
        period_.Update();
        burst.End();
    }

private:
    void AddInvoice(const Invoices& invoice) {
        invoices_.AddNew();
        invoices_[u"Kas"] = 0;
        invoices_[u"SalesID"] = u"1"_s;
        invoices_[u"InvoiceID"] = QString::number(invoice.Number());
        invoices_[u"OrNo"] = QString::number(invoice.Number());
        invoices_[u"CashierID"] = u"2"_s;
        invoices_[u"CashierName"] = u"kasir"_s;
        invoices_[u"PaymentType"] = 0;
        invoices_[u"DateSold"] = Day;
        invoices_[u"TimeSold"] = Noon;
        invoices_[u"CashAmount"] = Money::FromUnits(invoice.Total());
        invoices_[u"TaxTotal"] = Money();
        invoices_[u"CheckAmount"] = Money();
        invoices_[u"CheckNo"] = Money();
        invoices_[u"Bank"] = u" "_s;
        invoices_[u"Kupac"] = u""_s;
        invoices_[u"IB"] = u""_s;
        invoices_.Update();
    }

    void AddLine(int number, const Goods& goods) {
        lines_.AddNew();
        lines_[u"Kas"] = 0;
        lines_[u"InvoiceID"] = QString::number(number);
        lines_[u"ProdCode"] = goods.code;
        lines_[u"ProdDescription"] = goods.name;
        lines_[u"UnitPrice"] = Money::FromUnits(goods.price);
        lines_[u"QtySold"] = Money::FromWhole(1);
        TakeOffStock(goods.code, Money::FromWhole(1), [](const values::Error&) {});
        lines_[u"Amount"] = Money::FromUnits(goods.price);
        lines_[u"TaxPercent"] = Money::FromUnits(goods.TaxPercent());
        lines_[u"TaxAmount"] = Money::FromUnits(goods.TaxIn(goods.price));
        lines_[u"Unit"] = goods.unit;
        lines_[u"TaxID"] = goods.TaxID();
        lines_.Update();
    }

    store::Recordset invoices_, lines_, period_;
};

Work Ours(const Shop& shop, const QString& till) {
    const auto store = std::make_shared<TillStore>(till);
    return [store, invoice = Invoices(shop)]() mutable {
        invoice.Next();
        store->Post(invoice);
        return qint64{Commits};
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
        for (int i = 0; i < LineCount; ++i) AddLine(invoice.Number(), invoice.Line(i));
        changePeriod_.Bind(1, invoice.Total());
        changePeriod_.Bind(2, Day.toJulianDay());
        changePeriod_.Bind(3, Noon.msecsSinceStartOfDay() / 1000);
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
        const QByteArray number = QByteArray::number(invoice.Number());
        addInvoice_.Bind(1, number);
        addInvoice_.Bind(2, Day.toJulianDay());
        addInvoice_.Bind(3, Noon.msecsSinceStartOfDay() / 1000);
        addInvoice_.Bind(4, invoice.Total());
        Run(addInvoice_);
    }

    void AddLine(int invoice, const Goods& goods) {
        const QByteArray number = QByteArray::number(invoice);
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
    return [store, invoice = Invoices(shop)]() mutable {
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
