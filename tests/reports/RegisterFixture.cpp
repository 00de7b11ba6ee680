#include "reports/RegisterFixture.h"

#include <QFile>

#include "core/dbModule.h"
#include "delivery/TableLoader.h"
#include "forms/Controls.h"
#include "player/Keys.h"
#include "store/StorePath.h"

using namespace Qt::StringLiterals;

RegisterFixture::RegisterFixture() {
    const auto main = store::Database::Open(store::MainStorePath(folder.path()), store::MainSchema());
    for (const auto& table : {u"Sales"_s, u"Invoices"_s, u"SalesDetails"_s}) {
        QFile lines(QString::fromUtf8(TEST_DATA "/reports/shop/") + table + u".tsv"_s);
        EXPECT_TRUE(lines.open(QIODevice::ReadOnly)) << lines.fileName().toStdString();
        delivery::LoadRows(*main, table, lines);
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
