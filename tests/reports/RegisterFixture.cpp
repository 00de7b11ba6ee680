#include "reports/RegisterFixture.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QFile>
#include <QPushButton>

#include "core/dbModule.h"
#include "forms/Controls.h"
#include "player/Keys.h"
#include "store/StorePath.h"
#include "upkeep/TableLoader.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

RegisterFixture::RegisterFixture() {
    const auto main = store::Database::Open(store::MainPlace(folder.path()), store::MainSchema());
    for (const auto& table : {u"Sales"_s, u"Invoices"_s, u"SalesDetails"_s}) {
        QFile lines(QString::fromUtf8(TEST_DATA "/reports/shop/") + table + u".tsv"_s);
        EXPECT_TRUE(lines.open(QIODevice::ReadOnly)) << lines.fileName().toStdString();
        upkeep::LoadRows(*main, table, lines);
    }
    OpenMainStore();
}

frmTrenutnoStanjeKasa& RegisterFixture::ShowState() {
    auto* form = forms::Open<frmTrenutnoStanjeKasa>();
    forms::SetText(forms::Control(form, u"lblTipPregleda"), u"1"_s);
    form->Show();
    drivers::Settle();
    return *form;
}

frmTrenutnoStanjeKasa& RegisterFixture::ShowReview(const QString& number, const QString& date, const QString& time) {
    auto* form = forms::Open<frmTrenutnoStanjeKasa>();
    forms::SetText(forms::Control(form, u"lblTipPregleda"), u"2"_s);
    forms::SetText(forms::Control(form, u"lblZakljucakBr"), number);
    forms::SetText(forms::Control(form, u"lblDatumZakljucka"), date);
    forms::SetText(forms::Control(form, u"lblVrijemeZakljucka"), time);
    form->Show();
    drivers::Settle();
    return *form;
}

void RegisterFixture::ExpectPreview(drivers::Boxes& boxes, const QString& contents) {
    boxes.ExpectForm(u"frmRacunPregled"_s, [contents](QWidget& preview) {
        EXPECT_EQ(drivers::Box(preview, u"lblNazivFajla"), u"\\Report.txt");
        EXPECT_EQ(drivers::Box(preview, u"rtBox").toStdString(), contents.toStdString());
        drivers::Keys(u"{Esc}");
    });
}

QStringList RegisterFixture::Shown(const forms::Form& form) {
    QStringList rows;
    for (const QStringList& cells : drivers::List(form, u"lv1")) rows << cells.join(u'|');
    return rows;
}

void RegisterFixture::Sell(const QString& number, QDate day, const QString& amount) {
    auto invoice = MainStore().OpenRecordset(u"SELECT * FROM Invoices"_s);
    invoice.AddNew();
    invoice[u"InvoiceID"] = number;
    invoice[u"OrNo"] = number;
    invoice[u"CashierID"] = u"2"_s;
    invoice[u"DateSold"] = day;
    invoice[u"CashAmount"] = values::CMoney(amount);
    invoice.Update();
    auto line = MainStore().OpenRecordset(u"SELECT * FROM SalesDetails"_s);
    line.AddNew();
    line[u"InvoiceID"] = number;
    line[u"ProdCode"] = u"P"_s + number;
    line[u"Amount"] = values::CMoney(amount);
    line.Update();
}

void Choose(const forms::Form& report, const QString& days) {
    using drivers::Get;
    const QStringList ends = days.split(u'-', Qt::SkipEmptyParts);
    const auto date = [&](qsizetype end) { return QDate::fromString(ends[end], u"dd.MM.yyyy"_s); };
    if (ends.size() == 1) {
        auto* month = Get<QCalendarWidget>(report, u"mv1");
        month->setSelectedDate(date(0));
        month->setFocus();
        drivers::Keys(u"{Enter}");
    }
    if (ends.size() == 2) {
        Get<QDateEdit>(report, u"DTPicker1")->setDate(date(0));
        Get<QDateEdit>(report, u"DTPicker2")->setDate(date(1));
        Get<QPushButton>(report, u"Command1")->setFocus();
        drivers::Keys(u" ");
    }
}
