#include <QRadioButton>
#include <QStringDecoder>

#include "core/dbModule.h"
#include "output/Channel.h"
#include "reports/RegisterFixture.h"
#include "reports/frmActivity.h"
#include "reports/frmIzvjestajKIF.h"
#include "reports/frmPopisRobe.h"
#include "reports/frmRacuni.h"
#include "reports/frmSales.h"
#include "reports/frmSalesProducts.h"
#include "reports/frmSalesTax.h"
#include "reports/frmStanjeArtikala.h"
#include "reports/frmTaxbyInvoice.h"
#include "reports/frmZakljucakPregled.h"
#include "reports/frmZakljucakPregled1.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;
using drivers::Get;
using drivers::Keys;

namespace {

// A report on the shop of tests/data/reports/shop, saved as a file: the days are a period ("20.11.2026-24.11.2026"), a
// day ("23.11.2026") or none, `option` is the way to group, and what is saved must be the file
// tests/data/reports/NAME-LOCALE.txt, its line ends standing for CR LF.
struct ReportCase {
    const char* name;
    forms::Form& (*show)();
    const char* days;
    const char* option = nullptr;
    // F4 saves but where told otherwise; "preview" shows the report by F5 and does not save it.
    const char* how = "{F4}";
};

void PrintTo(const ReportCase& report, std::ostream* out) {
    *out << report.name;
}

const char* const Always = "01.11.2026-30.11.2026";
const ReportCase ReportCases[] = {
    {"sales-by-day", ShowReport<frmSales>, Always, "optDatum"},
    {"sales-by-cashier", ShowReport<frmSales>, Always, "optStopa"},
    {"sales-of-a-day", ShowReport<frmSales>, "23.11.2026"},
    {"products", ShowReport<frmSalesProducts>, "20.11.2026-23.11.2026"},
    {"tax-by-day", ShowReport<frmSalesTax>, Always, "optDatum"},
    {"tax-by-rate", ShowReport<frmSalesTax>, Always, "optStopa"},
    {"invoice-tax-by-day", ShowReport<frmTaxbyInvoice>, Always, "optDatum"},
    {"invoice-tax-by-invoice", ShowReport<frmTaxbyInvoice>, Always, "optStopa"},
    {"kif", ShowReport<frmIzvjestajKIF>, Always, "optStopa"},
    {"periods", ShowReport<frmZakljucakPregled>, Always},
    {"periods-by-register", ShowReport<frmZakljucakPregled>, Always, "optKasa"},
    {"periods-by-day", ShowReport<frmZakljucakPregled>, Always, "optDatum"},
    {"end-reports", ShowReport<frmZakljucakPregled1>, Always, nullptr, "preview"},
    {"list-of-invoices", ShowReport<frmRacuni>, Always, nullptr, "{F5}"},
    {"working-time", ShowReport<frmActivity>, Always},
    {"stock", ShowReport<frmStanjeArtikala>, ""},
    {"goods", ShowReport<frmPopisRobe>, ""},
};

class ReportCasesTest : public RegisterFixture,
                        public testing::WithParamInterface<std::tuple<const char*, ReportCase>> {
protected:
    ReportCasesTest() {
        Run(u"DELETE * FROM Login"_s);
        AddLogin(u"1"_s, QDate(2026, 11, 20), QTime(7, 55), {QDate(2026, 11, 21)}, {QTime(0, 10, 5)});
        AddLogin(u"2"_s, QDate(2026, 11, 24), QTime(7, 30, 59), {}, {});
    }

    static void AddLogin(const QString& number, QDate day, QTime time, const values::Value& dayOut,
                         const values::Value& timeOut);
    QByteArray Written(const char* how);
};

void ReportCasesTest::AddLogin(const QString& number, QDate day, QTime time, const values::Value& dayOut,
                               const values::Value& timeOut) {
    auto login = MainStore().OpenRecordset(u"SELECT * FROM Login"_s);
    login.AddNew();
    login[u"LogInNo"] = number;
    login[u"Date"] = day;
    login[u"LoginTime"] = time;
    login[u"DateOut"] = dayOut;
    login[u"LogOut"] = timeOut;
    login.Update();
}

QByteArray ReportCasesTest::Written(const char* how) {
    Boxes boxes;
    if (how == std::string("preview")) {
        boxes.ExpectForm(u"frmRacunPregled"_s, [](QWidget&) { Keys(u"{Esc}"); });
        Keys(u"{F5}");
        return File(u"Report.txt"_s);
    }
    boxes.ExpectFile(Path(u"saved.txt"_s));
    Keys(QString::fromLatin1(how));
    EXPECT_EQ(File(u"saved.txt"_s), File(u"Report.txt"_s));
    return File(u"saved.txt"_s);
}

TEST_P(ReportCasesTest, SavesThisFile) {
    const auto& [locale, report] = GetParam();
    values::SetUserLocale(QLocale(QString::fromLatin1(locale)));
    forms::Form& form = report.show();
    Choose(form, QString::fromLatin1(report.days));
    if (report.option) Get<QRadioButton>(form, QString::fromLatin1(report.option))->click();
    drivers::Settle();
    const QString name = QString::fromLatin1(report.name) + u'-' + QString::fromLatin1(locale);
    drivers::Grab(form, u"report-"_s + name);

    QStringDecoder decode(locale == std::string("hr_HR") ? "windows-1250" : "windows-1252");
    const QString written = decode(Written(report.how));
    QFile file(QString::fromUtf8(TEST_DATA "/reports/") + name + u".txt"_s);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QString expected = QString::fromUtf8(file.readAll());
    EXPECT_EQ(written.toStdString(), expected.replace(u'\n', u"\r\n"_s).toStdString());
    EXPECT_FALSE(output::Channel1().IsOpen());
    form.Unload();
}

INSTANTIATE_TEST_SUITE_P(Reports, ReportCasesTest,
                         testing::Combine(testing::Values("en_US", "hr_HR"), testing::ValuesIn(ReportCases)),
                         [](const auto& info) {
                             const QString name = QString::fromLatin1(std::get<1>(info.param).name) + u'_' +
                                                  QString::fromLatin1(std::get<0>(info.param));
                             return QString(name).replace(u'-', u'_').toStdString();
                         });

}  // namespace
