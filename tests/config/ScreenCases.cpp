#include <QComboBox>
#include <QPageSetupDialog>
#include <QPrinterInfo>
#include <QTimer>

#include "config/frmMreza.h"
#include "config/frmOptions.h"
#include "config/frmWinPrinter.h"
#include "core/dbModule.h"
#include "forms/Program.h"
#include "output/PagePrinter.h"
#include "support/Files.h"
#include "support/ScreenCase.h"

using drivers::Get;
using drivers::ScreenCase;
using drivers::Step;
using namespace Qt::StringLiterals;

namespace {

// The page setup, in which A5 is chosen, and taken or not: what paper there is then.
void ChoosePaper(ScreenCase& at, const QString& rest, const Step&) {
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&timer, rest] {
        auto* dialog = qobject_cast<QPageSetupDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        timer.stop();
        auto* sizes = Get<QComboBox>(*dialog, u"pageSizeCombo");
        sizes->setCurrentIndex(sizes->findText(u"A5"_s));
        rest == u"A5" ? dialog->accept() : dialog->reject();
    });
    timer.start(10);
    drivers::Click(Get<QAbstractButton>(at.Form(), u"cmdPrinter"));
    EXPECT_FALSE(timer.isActive()) << "no page setup came up";
    const QPageLayout paper = output::ThePagePrinter().Paper();
    EXPECT_EQ(paper.pageSize().id(), rest == u"A5" ? QPageSize::A5 : QPageSize::A4);
    EXPECT_TRUE(rest != u"A5" || qAbs(paper.margins(QPageLayout::Millimeter).left() - 12) < 0.1);
}

template <typename Screen>
void Show(ScreenCase& at, const QString&, const Step&) {
    at.Form();
    forms::Run([] { Screen().ShowModal(); }, u"VELTON POS"_s);
}

// The buttons of a setting stand for "1", "2" and so on: each is shown as it was saved last, works at its click and is
// stored by the save.
void TryOptions(ScreenCase& at, const QString& rest, const Step& step) {
    const QStringList buttons = rest.split(u' ').mid(1);
    const auto stored = [field = rest.section(u' ', 0, 0)] {
        return OptionsStore().OpenRecordset(u"SELECT * FROM Options"_s)[field].TextOrEmpty();
    };
    for (int i = 0; i < buttons.size(); ++i) {
        at.Coming().ExpectForm(u"frmOptions"_s, [&](QWidget& screen) {
            for (int other = 0; other < buttons.size(); ++other)
                EXPECT_EQ(Get<QAbstractButton>(screen, buttons[other])->isChecked(), other == i - 1);
            Get<QAbstractButton>(screen, buttons[i])->click();
            EXPECT_EQ(drivers::SettingInForce(rest.section(u' ', 0, 0)), QString::number(i + 1));
            EXPECT_EQ(stored(), QString::number(i));
            at.Coming().Expect(u"Changes are saved."_s);
            Get<QAbstractButton>(screen, u"cmdOK")->click();
        });
        Show<frmOptions>(at, rest, step);
        EXPECT_EQ(stored(), QString::number(i + 1)) << buttons[i].toStdString();
    }
}

[[maybe_unused]] const bool added = ScreenCase::AddWords({
    {u"paper"_s, ChoosePaper},
    {u"options"_s, TryOptions},
    {u"printer"_s, Show<frmWinPrinter>},
    {u"network"_s, Show<frmMreza>},
    // A machine with a printer has the receipt there.
    {u"printout"_s,
     [](auto& at, auto& rest, auto&) {
         output::ThePagePrinter().SetPaper({});
         if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
         const QByteArray page = drivers::ReadFile(at.Path(rest.section(u" | "_s, 0, 0)));
         EXPECT_TRUE(page.contains(rest.section(u" | "_s, 1).toUtf8()));
     }},
    {u"hide-sales"_s, [](auto&, auto&, auto&) { forms::FindForm(u"frmORVAtouch")->hide(); }},
});

}  // namespace

INSTANTIATE_SCREEN_CASES(Config, u"network"_s, u"page-printer"_s, u"settings"_s);
