#include "bench/Shop.h"

#include <QDir>
#include <QFile>
#include <cstdio>
#include <random>
#include <stdexcept>

#include "delivery/Delivery.h"
#include "store/Database.h"
#include "store/StorePath.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace bench {

namespace {

constexpr int LongestInvoice = 9;
constexpr int LinesOfABatch = 50'000;

void AddProducts(store::Database& main, const std::vector<Goods>& products) {
    store::Database::Batch batch(main);
    auto rs = main.OpenRecordset(u"SELECT * FROM Products"_s);
    for (const Goods& goods : products) {
        rs.AddNew();
        rs[u"ProdCode"] = goods.code;
        rs[u"ProdDescription"] = goods.name;
        rs[u"Qty"] = 1000;
        rs[u"Unit"] = goods.unit;
        rs[u"UnitPrice"] = Money::FromUnits(goods.price);
        rs[u"UnitPricebezPDV"] = Money();
        rs[u"VPUnitPrice"] = Money();
        rs[u"VPUnitPricebezPDV"] = Money();
        rs[u"TaxID"] = goods.TaxID();
        rs[u"TaxPercent"] = Money::FromUnits(goods.TaxPercent());
        rs[u"Pict"] = u""_s;
        rs.Update();
    }
    batch.Commit();
}

// Years of sales, written line by line as the till writes them.
class Business {
public:
    Business(store::Database& main, const std::vector<Goods>& products)
        : main_(main),
          products_(products),
          logins_(main.OpenRecordset(u"SELECT * FROM Login"_s)),
          periods_(main.OpenRecordset(u"SELECT * FROM Sales"_s)),
          invoices_(main.OpenRecordset(u"SELECT * FROM Invoices"_s)),
          lines_(main.OpenRecordset(u"SELECT * FROM SalesDetails"_s)) {}

    void Sell(int lines, int days) {
        for (int sold = 0; sold < lines;) {
            store::Database::Batch batch(main_);
            const int upTo = std::min(sold + LinesOfABatch, lines);
            while (sold < upTo) {
                const QDate day = Shop::DayAt(static_cast<double>(sold) / lines, days);
                if (day != day_) Begin(day);
                sold += AddInvoice(std::min(Draw(LongestInvoice) + 1, upTo - sold));
            }
            batch.Commit();
            std::fprintf(stderr, "\rmaking the store: %d of %d lines", sold, lines);
        }
        AddPeriod();
        std::fprintf(stderr, "\n");
    }

private:
    int Draw(int below) { return static_cast<int>(random_() % static_cast<quint64>(below)); }

    void Begin(QDate day) {
        if (day_.isValid()) AddPeriod();
        if (day.year() != day_.year()) receipt_ = 0;
        day_ = day;
        taken_ = {};
        ++period_;
        AddLogin();
    }

    void AddLogin() {
        logins_.AddNew();
        logins_[u"LogInNo"] = QString::number(period_);
        logins_[u"UserID"] = u"2"_s;
        logins_[u"AccLevel"] = u"1"_s;
        logins_[u"Date"] = day_;
        logins_[u"LoginTime"] = QTime(7, 0);
        logins_[u"DateOut"] = day_;
        logins_[u"LogOut"] = QTime(21, 0);
        logins_.Update();
    }

    // The period of the day that ends.
    void AddPeriod() {
        periods_.AddNew();
        periods_[u"SalesID"] = QString::number(period_);
        periods_[u"UserID"] = u"2"_s;
        periods_[u"DateGenerated"] = day_;
        periods_[u"TimeGenerated"] = QTime(7, 0);
        periods_[u"TotalSales"] = taken_;
        periods_[u"DateStoped"] = day_;
        periods_[u"TimeStoped"] = QTime(21, 0);
        periods_[u"Closed"] = true;
        periods_[u"Payed"] = true;
        periods_[u"Grupni"] = period_;
        periods_.Update();
    }

    int AddInvoice(int lineCount) {
        ++invoice_;
        ++receipt_;
        qint64 total = 0, tax = 0;
        for (int i = 0; i < lineCount; ++i) AddLine(products_[static_cast<size_t>(Draw(products()))], total, tax);
        invoices_.AddNew();
        invoices_[u"SalesID"] = QString::number(period_);
        invoices_[u"InvoiceID"] = QString::number(invoice_);
        invoices_[u"OrNo"] = QString::number(receipt_);
        invoices_[u"CashierID"] = u"2"_s;
        invoices_[u"CashierName"] = u"kasir"_s;
        invoices_[u"PaymentType"] = 0;
        invoices_[u"DateSold"] = day_;
        invoices_[u"TimeSold"] = QTime(7 + Draw(14), Draw(60), Draw(60));
        invoices_[u"CashAmount"] = Money::FromUnits(total);
        invoices_[u"TaxTotal"] = Money::FromUnits(tax);
        invoices_[u"CheckAmount"] = Money();
        invoices_[u"CheckNo"] = Money();
        invoices_[u"Bank"] = u" "_s;
        invoices_[u"Kupac"] = u""_s;
        invoices_[u"IB"] = u""_s;
        invoices_.Update();
        taken_ += Money::FromUnits(total);
        return lineCount;
    }

    void AddLine(const Goods& goods, qint64& total, qint64& tax) {
        const qint64 quantity = goods.unit == u"kg" ? (Draw(250) + 10) * 100 : (Draw(3) + 1) * Money::Scale;
        const qint64 amount = goods.price * quantity / Money::Scale;
        lines_.AddNew();
        lines_[u"InvoiceID"] = QString::number(invoice_);
        lines_[u"ProdCode"] = goods.code;
        lines_[u"ProdDescription"] = goods.name;
        lines_[u"UnitPrice"] = Money::FromUnits(goods.price);
        lines_[u"QtySold"] = Money::FromUnits(quantity);
        lines_[u"Amount"] = Money::FromUnits(amount);
        lines_[u"TaxPercent"] = Money::FromUnits(goods.TaxPercent());
        lines_[u"TaxAmount"] = Money::FromUnits(goods.TaxIn(amount));
        lines_[u"Unit"] = goods.unit;
        lines_[u"TaxID"] = goods.TaxID();
        lines_.Update();
        total += amount;
        tax += goods.TaxIn(amount);
    }

    int products() const { return static_cast<int>(products_.size()); }

    store::Database& main_;
    const std::vector<Goods>& products_;
    store::Recordset logins_, periods_, invoices_, lines_;
    std::mt19937_64 random_;
    QDate day_;
    Money taken_;  // on this day
    int period_ = 0;
    int invoice_ = 0;
    int receipt_ = 0;
};

void MustSucceed(bool done, const QString& what) {
    if (!done) throw std::runtime_error(what.toStdString());
}

}  // namespace

Shop::Shop(const QString& dataFolder, ShopSize size)
    : size_(size),
      folder_(
          u"%1/shop-%2-%3-%4"_s.arg(QDir(dataFolder).absolutePath()).arg(size.products).arg(size.lines).arg(size.days)),
      products_(MakeGoods(size.products)) {
    if (QDir(folder_).exists()) return;
    // A shop that was left half made is not taken for a whole one.
    const QString unfinished = folder_ + u".part"_s;
    QDir(unfinished).removeRecursively();
    Make(unfinished);
    MustSucceed(QDir().rename(unfinished, folder_), u"cannot make "_s + folder_);
}

void Shop::Make(const QString& folder) const {
    delivery::MakeProgramFolder(folder);
    const auto options = store::Database::Open(store::OptionsPlace(folder), store::OptionsSchema());
    options->Execute(u"UPDATE Options SET Kusur = False"_s);  // no dialog waits for an answer
    const auto main = store::Database::Open(store::MainPlace(folder), store::MainSchema());
    AddProducts(*main, products_);
    Business(*main, products_).Sell(size_.lines, size_.days);
}

QString Shop::StorePath() const {
    return store::MainPlace(folder_).Path();
}

std::vector<QString> Shop::RandomCodes(int count) const {
    std::mt19937_64 random;
    std::vector<QString> codes;
    codes.reserve(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) codes.push_back(products_[random() % products_.size()].code);
    return codes;
}

void Shop::CopyTo(const QString& folder) const {
    QDir(folder).removeRecursively();
    delivery::MakeProgramFolder(folder);
    for (const QString& name : {u"/ORVA.pos"_s, u"/opt.pos"_s}) {
        QFile::remove(folder + name);
        MustSucceed(QFile::copy(folder_ + name, folder + name), u"cannot copy the store to "_s + folder);
    }
}

}  // namespace bench
