#include "support/Files.h"
#include "support/ScreenCase.h"

#include <QApplication>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QTest>

#include "core/Session.h"
#include "core/Settings.h"
#include "forms/Controls.h"
#include "forms/Program.h"
#include "output/Channel.h"
#include "reports/RegisterFixture.h"
#include "reports/frmTrenutnoStanjeKasa.h"
#include "values/Locale.h"

using drivers::Box;
using drivers::Get;
using drivers::Keys;
using drivers::ScreenCase;
using drivers::Step;
using namespace Qt::StringLiterals;

namespace {

// NAME | DATE | TIME of an End Report; the open periods without them.
void ShowState(ScreenCase& at, const QString& kind, const QStringList& report) {
    auto* form = forms::Open<frmTrenutnoStanjeKasa>();
    forms::SetText(forms::Control(form, u"lblTipPregleda"), kind);
    forms::SetText(forms::Control(form, u"lblZakljucakBr"), report.value(0));
    forms::SetText(forms::Control(form, u"lblDatumZakljucka"), report.value(1));
    forms::SetText(forms::Control(form, u"lblVrijemeZakljucka"), report.value(2));
    form->Show();
    drivers::Settle();
    at.GoOnIn(*form);
}

// A file under tests/data/reports in UTF-8, or nothing for no name.
QString Expected(const QString& name) {
    if (name.isEmpty()) return {};
    return QString::fromUtf8(drivers::ReadFile(QStringLiteral(TEST_DATA "/reports/%1.txt").arg(name)));
}

// The file Report.txt holds these lines, in the code page of the locale and ended by CR LF.
void LeavesReport(ScreenCase& at, const QString& name) {
    QStringDecoder decode(values::UserLocale().name() == u"hr_HR" ? "windows-1250" : "windows-1252");
    const QString written = decode(at.File(u"Report.txt"_s));
    EXPECT_EQ(written.toStdString(), Expected(name).replace(u'\n', u"\r\n"_s).toStdString());
    EXPECT_FALSE(output::Channel1().IsOpen());
}

// NAME KEYS: the keys save the report as a file, which Report.txt equals; "preview" shows it by F5 instead.
void Saves(ScreenCase& at, const QString& rest, const Step&) {
    const QString keys = rest.section(u' ', 1);
    if (keys == u"preview") {
        at.Coming().ExpectForm(u"frmRacunPregled"_s, [](QWidget&) { Keys(u"{Esc}"); });
        Keys(u"{F5}");
    } else {
        at.Coming().ExpectFile(at.Path(u"saved.txt"_s));
        Keys(keys);
        EXPECT_EQ(at.File(u"saved.txt"_s), at.File(u"Report.txt"_s));
    }
    LeavesReport(at, rest.section(u' ', 0, 0) + u'-' + values::UserLocale().name());
}

void ExpectPreview(ScreenCase& at, const QString& rest, const Step&) {
    at.Coming().ExpectForm(u"frmRacunPregled"_s, [contents = Expected(rest)](QWidget& preview) {
        EXPECT_EQ(Box(preview, u"lblNazivFajla"), u"\\Report.txt");
        EXPECT_EQ(Box(preview, u"rtBox").toStdString(), contents.toStdString());
        Keys(u"{Esc}");
    });
}

// The controls by which the Tab key leads; a date has three parts, and the key goes from one to the next.
void Walk(ScreenCase&, const QString& rest, const Step&) {
    QStringList walk;
    while (walk.size() < rest.split(u' ').size()) {
        QWidget* control = QApplication::focusWidget();
        while (control->objectName().startsWith(u"qt_")) control = control->parentWidget();
        if (!walk.endsWith(control->objectName())) walk << control->objectName();
        Keys(u"{Tab}");
    }
    EXPECT_EQ(walk.join(u' '), rest);
}

[[maybe_unused]] const bool added = ScreenCase::AddWords({
    {u"shop"_s, [](auto& at, auto&, auto&) { OpenShopOfReports(at.Path({})); }},
    {u"state"_s, [](auto& at, auto&, auto&) { ShowState(at, u"1"_s, {}); }},
    {u"review"_s, [](auto& at, auto& rest, auto&) { ShowState(at, u"2"_s, rest.split(u" | "_s)); }},
    {u"report"_s, [](auto& at, auto& rest, auto&) { at.GoOnIn(ShowReport(rest)); }},
    {u"days"_s, [](auto& at, auto& rest, auto&) { Choose(static_cast<forms::Form&>(at.Form()), rest); }},
    {u"saves"_s, Saves},
    {u"preview"_s, ExpectPreview},
    {u"leaves"_s, [](auto& at, auto& rest, auto&) { LeavesReport(at, rest); }},
    {u"walk"_s, Walk},
    {u"print-on"_s,
     [](auto&, auto& rest, auto&) {
         TheSettings.PrinterZaIzvjestaj = rest;
         TheSettings.PraznihLinijaPoslijeRacuna = 2;
     }},
    // Every box of a sum shows this.
    {u"sums"_s,
     [](ScreenCase& at, auto& rest, auto&) {
         for (const auto* box : at.Form().findChildren<QLineEdit*>(QRegularExpression(u"^txt"_s)))
             EXPECT_EQ(box->text(), rest) << box->objectName().toStdString();
     }},
    // A click on an option that changes no row.
    {u"same-rows"_s,
     [](auto& at, auto& rest, auto&) {
         const auto before = drivers::List(at.Form(), u"lv1");
         Get<QAbstractButton>(at.Form(), rest)->click();
         EXPECT_EQ(drivers::List(at.Form(), u"lv1"), before);
     }},
    {u"keypad"_s, [](auto&, auto& rest,
                     auto&) { QTest::keyClick(QApplication::focusWidget(), rest[0].toLatin1(), Qt::KeypadModifier); }},
    {u"totals"_s,
     [](auto& at, auto& rest, auto&) { EXPECT_EQ(Box(at.Form(), u"rtBox").count(u"TOTAL..."_s), rest.toInt()); }},
    {u"session"_s, [](auto&, auto& rest, auto&) { EXPECT_EQ(TheSession.LoginNumber, rest); }},
    {u"begin-again"_s,
     [](auto&, auto&, auto&) {
         forms::DropLoadedForms();
         forms::ResetProgramEnd();
     }},
    {u"link"_s,
     [](auto& at, auto& rest, auto&) {
         EXPECT_TRUE(QFile::link(rest.section(u" | "_s, 1), at.Path(rest.section(u" | "_s, 0, 0))));
     }},
});

}  // namespace

INSTANTIATE_SCREEN_CASES(Reports, u"end-report"_s, u"register-state"_s, u"report-frame"_s, u"reports"_s,
                         u"reports-at-the-till"_s);
