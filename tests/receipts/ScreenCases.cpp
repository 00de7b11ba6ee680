#include "support/Files.h"
#include "support/ScreenCase.h"

#include <QDateEdit>
#include <QScrollBar>

#include "ReceiptCase.h"
#include "forms/Program.h"
#include "receipts/frmRacunPregled.h"

using drivers::Box;
using drivers::Get;
using drivers::Keys;
using drivers::ScreenCase;
using drivers::Step;
using namespace Qt::StringLiterals;

namespace {

const auto PreviewFile = u"tempracun.txt"_s;

void ExpectShown(ScreenCase& at, QWidget& form, const QString& file) {
    EXPECT_EQ(Box(form, u"rtBox").toLatin1().replace("\n", "\r\n"), at.File(file));
}

// The preview of so many invoices comes up by itself and is closed.
void ExpectPreview(ScreenCase& at, const QString& rest, const Step&) {
    at.Coming().ExpectForm(u"frmRacunPregled"_s, [&at, rest](QWidget& preview) {
        EXPECT_EQ(preview.windowTitle(), u"Review Invoice");
        EXPECT_EQ(Box(preview, u"lblNazivFajla"), u'\\' + PreviewFile);
        EXPECT_EQ(at.File(PreviewFile).count("TOTAL..."), rest.toInt());
        ExpectShown(at, preview, PreviewFile);
        Keys(u"{F12}");
    });
}

// A file in tests/data/review: settings as NAME=VALUE lines, "--", then the preview of all invoices and the reprint of
// the first, each under "== NAME" and written as the receipts' files are.
void Reprint(ScreenCase& at, const QString& rest, const Step& step) {
    const QString text = QString::fromUtf8(drivers::ReadFile(QStringLiteral(TEST_DATA "/review/%1.txt").arg(rest)));
    at.Crash();
    for (const QString& line : text.section(u"--\n"_s, 0, 0).split(u'\n', Qt::SkipEmptyParts))
        at.Setting(line.section(u'=', 0, 0), line.section(u'=', 1));
    at.LogIn(u"admin"_s);
    ExpectPreview(at, u"3"_s, step);
    at.Coming().ExpectForm(u"frmRacPRG"_s, [](QWidget&) { Keys(u"{F5}{F12}"); });
    mdiORVA::Window().Choose(u"mnuListRacun"_s);
    QString printed;
    for (const QString& name : {PreviewFile, u"lpt1.prn"_s, u"lpt2.prn"_s})
        if (QFile::exists(at.Path(name))) printed += u"== "_s + name + u'\n' + ::Shown(at.File(name));
    EXPECT_EQ(printed.toStdString(), text.mid(text.indexOf(u"== ")).toStdString());
}

[[maybe_unused]] const bool added = ScreenCase::AddWords({
    {u"previewed"_s, ExpectPreview},
    {u"reprint"_s, Reprint},
    {u"preview"_s,
     [](auto& at, auto& rest, auto&) {
         at.Form();
         forms::Run([&] { frmRacunPregled::Preview(rest); }, u"VELTON POS"_s);
     }},
    {u"shows"_s, [](auto& at, auto& rest, auto&) { ExpectShown(at, at.Form(), rest); }},
    {u"at-end"_s,
     [](auto& at, auto&, auto&) {
         const auto* down = Get<QAbstractScrollArea>(at.Form(), u"rtBox")->verticalScrollBar();
         EXPECT_GT(down->maximum(), 0);
         EXPECT_EQ(down->value(), down->maximum());
     }},
    {u"totals"_s, [](auto& at, auto& rest, auto&) { EXPECT_EQ(at.File(PreviewFile).count("TOTAL..."), rest.toInt()); }},
    {u"twice"_s,
     [](auto& at, auto& rest, auto&) {
         const QByteArray all = at.File(rest);
         EXPECT_EQ(all.first(all.size() / 2), all.sliced(all.size() / 2));
     }},
    {u"leaf"_s,
     [](auto& at, auto& rest, auto&) {
         drivers::Click(Get<QWidget>(at.Form(), u"cmd"_s + rest.section(u' ', 0, 0)));
         EXPECT_EQ(Box(at.Form(), u"txtORNumber"), rest.section(u' ', 1));
     }},
    {u"day"_s,
     [](auto& at, auto& rest, auto&) {
         const QDate day = QDate::fromString(rest.section(u' ', 1), Qt::ISODate);
         Get<QDateEdit>(at.Form(), rest.section(u' ', 0, 0))->setDate(day);
     }},
});

}  // namespace

INSTANTIATE_SCREEN_CASES(Receipts, u"fiscal"_s, u"preview"_s, u"review"_s);
