#include <ctime>

#include "core/Settings.h"
#include "core/dbModule.h"
#include "forms/Program.h"
#include "receipts/InvoiceLists.h"
#include "receipts/ReviewReceipt.h"
#include "receipts/frmRacPRG.h"
#include "support/Till.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Box;
using drivers::Get;
using drivers::Keys;

namespace {

class ReviewTest : public drivers::TillTest {
protected:
    ReviewTest() { LogIn(); }

    void ExpectPreview(std::function<void(QWidget&)> script = [](QWidget&) { Keys(u"{Esc}"); }) {
        boxes_.ExpectForm(u"frmRacunPregled"_s, std::move(script));
    }
    // Opens the review as the menu does, after the preview that comes first, and runs the script.
    void Review(std::function<void(frmRacPRG&)> script) {
        frmRacPRG review;
        boxes_.ExpectForm(u"frmRacPRG"_s, [&](QWidget&) {
            script(review);
            review.Unload();
        });
        forms::Run([&] { review.ShowModal(); }, u"VELTON POS"_s);
    }
    QByteArray PreviewText() const { return File(u"tempracun.txt"_s); }

    drivers::Boxes boxes_;
};

TEST_F(ReviewTest, AHiddenLoadBringsUpThePreviewOfTheChosenInvoices) {
    Keys(u"100{Enter}{F5}300{Enter}{F5}");
    ExpectPreview([](QWidget& preview) {
        EXPECT_TRUE(Box(preview, u"rtBox").contains(u"Invoice No:2    24.11.2026"));
        EXPECT_FALSE(Box(preview, u"rtBox").contains(u"Invoice No:1 "));
        Keys(u"{F12}");
    });
    forms::Run(
        [] {
            frmRacPRG review;
            review.strSQLwhere = u" WHERE InvoiceID = '2'"_s;
            review.Printaj = true;
            review.Load();
            EXPECT_FALSE(review.isVisible());
            review.Unload();
        },
        {});
    EXPECT_FALSE(forms::FindForm(u"frmRacPRG"));
}

// A shop whose rows are as odd as a store lets them be.
class OddShopTest : public ReviewTest {
protected:
    using Fields = std::initializer_list<std::pair<QStringView, values::Value>>;

    void Add(const QString& table, Fields fields) {
        auto rs = MainStore().OpenRecordset(u"SELECT * FROM "_s + table);
        rs.AddNew();
        for (const auto& [name, value] : fields) rs[name] = value;
        rs.Update();
    }
    void AddInvoice(const values::Value& id, const QString& orNo, const values::Value& cashier = u"Ana"_s,
                    qint64 units = 98765) {
        const auto total = values::Money::FromUnits(units);
        Add(u"Invoices"_s,
            {{u"InvoiceID", id}, {u"OrNo", orNo}, {u"CashierName", cashier}, {u"CashAmount", total}, {u"TaxTotal", 0}});
    }
    void AddLine(const QString& id, const QString& code, const values::Value& taxID, double percent, double amount,
                 double quantity = 1.2345) {
        Add(u"SalesDetails"_s, {{u"InvoiceID", id},
                                {u"ProdCode", code},
                                {u"ProdDescription", u"Šećer\r\n漢 "_s + code},
                                {u"UnitPrice", -amount},
                                {u"QtySold", quantity},
                                {u"Amount", amount},
                                {u"TaxPercent", percent},
                                {u"TaxAmount", amount / 8},
                                {u"Unit", u"kg\nm"_s},
                                {u"TaxID", taxID}});
    }
    void AddOddInvoices() {
        AddInvoice(u"abc"_s, u"x12"_s);
        AddInvoice(u"ABC"_s, u"2"_s, values::Value(), -50'000);
        AddInvoice(u"007"_s, u"3"_s, u"Š漢\r\n\"x"_s);
        AddInvoice(u"7"_s, u"4.50"_s);
        AddInvoice(u"1"_s, u"5"_s);
        AddInvoice(u"1"_s, u"5"_s, u"Eva"_s);
        AddInvoice(values::Value(), u" 6"_s, u""_s, std::numeric_limits<qint64>::max());
        AddInvoice(u"none"_s, u"1e3"_s);
        for (const double amount : {0.005, -2.675, 90'000'000'000'000.12, 0.333, -0.0})
            AddLine(u"Abc"_s, u"1"_s, u"P"_s, 17, amount);
        for (const QString& taxID : {u"P"_s, u"p"_s, u" P"_s, u"P"_s, u""_s, u"č"_s, u"Č"_s})
            AddLine(u"007"_s, u"12345678901234567890"_s, taxID, static_cast<double>(taxID.size()) * 5.555, 123.456);
        AddLine(u"7"_s, u""_s, values::Value(), 0, -0.0, -0.0);
        AddLine(u"1"_s, u"2"_s, u"N"_s, 0.005, 9.99, 1000);
        AddLine(u"1"_s, u"3"_s, u"N"_s, 25, -99'999.995, -3);
        Add(u"SalesDetails"_s, {{u"InvoiceID", u""_s}, {u"TaxAmount", 0}});
    }
    // What the controls show of the invoice in sight.
    static InvoiceText ShownIn(frmRacPRG& form) {
        return {.orNo = Box(form, u"txtORNumber"),
                .customer = {},
                .ident = {},
                .cashier = Box(form, u"txtCashier"),
                .total = Box(form, u"txtTotalAmount"),
                .taxTotal = Box(form, u"txtTaxTotal"),
                .items = ItemsOf(*Get<forms::ListView>(form, u"lv1")),
                .taxes = TaxesOf(*Get<forms::ListView>(form, u"lvPorez"))};
    }
    void ExpectPreviewAsShown() {
        ExpectPreview();
        Review([this](frmRacPRG& form) {
            const QByteArray fromRows = PreviewText();
            QFile::remove(Path(u"tempracun.txt"_s));
            for (qsizetype left = fromRows.count("TOTAL..."); left > 0; --left) {
                AppendInvoiceToPreview(ShownIn(form));
                drivers::Click(Get<QWidget>(form, u"cmdNext"));
            }
            ClosePreview();
            EXPECT_EQ(PreviewText().toStdString(), fromRows.toStdString());
            drivers::Click(Get<QWidget>(form, u"cmdFirst"));
            ExpectPreview();
            Keys(u"{F7}");
            EXPECT_EQ(Box(form, u"txtORNumber"), u"1000");
            EXPECT_EQ(Box(form, u"txtInvoiceNumber"), u"none");
        });
    }
};

TEST_F(OddShopTest, ThePreviewHoldsWhatTheControlsShow) {
    AddOddInvoices();
    const QStringList locales = {u"en_US"_s, u"hr_HR"_s, u"de_CH"_s};
    for (const QChar layout : u"12345678"_s) {
        values::SetUserLocale(QLocale(locales[layout.digitValue() % 3]));
        TheSettings.TipRacuna = layout;
        TheSettings.RekapPoreza = layout == u'4' ? u"2"_s : u"1"_s;
        ExpectPreviewAsShown();
    }
}

TEST_F(ReviewTest, TenThousandInvoicesAreWrittenQuickly) {
    constexpr int count = 10000;
    {
        store::Database::Batch batch(MainStore());
        QStringList invoices, details;
        for (int number = 1; number <= count; ++number) {
            invoices += u"InvoiceID=%1 | OrNo=%1 | CashAmount=3 | TaxTotal=0 | DateSold=11/24/2026"_s.arg(number);
            for (int code = 1; code <= 3; ++code)
                details +=
                    u"InvoiceID=%1 | ProdCode=%2 | ProdDescription=Goods %2 | UnitPrice=1 | QtySold=1 | Amount=1 | "
                    u"TaxPercent=0 | TaxAmount=0 | TaxID=N"_s.arg(number)
                        .arg(code);
        }
        drivers::AddRows(MainStore(), u"Invoices"_s, invoices);
        drivers::AddRows(MainStore(), u"SalesDetails"_s, details);
        batch.Commit();
    }
    const std::clock_t before = std::clock();  // of this process: others may hold the machine meanwhile
    ExpectPreview([&](QWidget&) {
        const auto seconds = (std::clock() - before) / CLOCKS_PER_SEC;
        RecordProperty("seconds", static_cast<int>(seconds));
        EXPECT_LT(seconds, 20);
        Keys(u"{F12}");
    });
    Review([](frmRacPRG& form) { EXPECT_EQ(Box(form, u"txtORNumber"), u"1"); });
    EXPECT_EQ(PreviewText().count("TOTAL..."), count);
}

}  // namespace
