#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>

#include "core/BackupStart.h"
#include "core/Settings.h"
#include "forms/Program.h"
#include "player/Input.h"
#include "support/Engines.h"
#include "support/ScreenCase.h"
#include "upkeep/TableLoader.h"
#include "values/Clock.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace drivers {

namespace {

QStringList Texts(const std::vector<Step>& lines) {
    QStringList texts;
    for (const Step& line : lines) texts << line.text;
    return texts;
}

QString Joined(const QStringList& rows) {
    return rows.join(u'\n');
}

void ExpectEqual(const QString& is, const QString& wanted) {
    EXPECT_EQ(is.toStdString(), wanted.toStdString());
}

// "NAME=TEXT" or another of the signs that `see` has, several of them between " | ".
void ExpectShown(const QString& claims, const std::function<QString(const QString&)>& shown) {
    static const QRegularExpression claim(u"^([^=^~!$]+)([=^~!$])(.*)$"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
    for (const QString& text : claims.split(u" | "_s)) {
        const auto parts = claim.match(text);
        ASSERT_TRUE(parts.hasMatch()) << "no claim: " << text.toStdString();
        const QString is = shown(parts.captured(1));
        const QString wanted = parts.captured(3);
        SCOPED_TRACE(text.toStdString());
        switch (parts.captured(2)[0].unicode()) {
            case u'=':
                ExpectEqual(is, wanted);
                break;
            case u'^':
                EXPECT_TRUE(is.startsWith(wanted)) << is.toStdString();
                break;
            case u'$':
                EXPECT_TRUE(is.endsWith(wanted)) << is.toStdString();
                break;
            default:
                EXPECT_EQ(is.contains(wanted), parts.captured(2) == u"~") << is.toStdString();
        }
    }
}

std::optional<QMessageBox::Icon> IconOf(const QString& word) {
    const QMap<QString, QMessageBox::Icon> icons{{u"NoIcon"_s, QMessageBox::NoIcon},
                                                 {u"Question"_s, QMessageBox::Question},
                                                 {u"Information"_s, QMessageBox::Information},
                                                 {u"Warning"_s, QMessageBox::Warning},
                                                 {u"Critical"_s, QMessageBox::Critical}};
    return icons.contains(word) ? std::optional(icons[word]) : std::nullopt;
}

// TEXT | TITLE | ICON | BUTTON, but for the text in any order.
void ExpectBox(Boxes& boxes, const QString& rest) {
    QStringList parts = rest.split(u" | "_s);
    QString text = parts.takeFirst();
    const auto button = parts.removeAll(u"Yes"_s)  ? QMessageBox::Yes
                        : parts.removeAll(u"No"_s) ? QMessageBox::No
                                                   : QMessageBox::Ok;
    if (text.endsWith(u"..."))
        boxes.ExpectBeginning(text.chopped(3), button);
    else
        boxes.Expect(text, button);
    for (const QString& part : parts) {
        const auto icon = IconOf(part);
        icon ? boxes.WithIcon(*icon) : boxes.Titled(part);
    }
}

// An option is wider than what of it can be clicked.
void ClickOn(QWidget& control) {
    const auto* option = qobject_cast<QAbstractButton*>(&control);
    if (!option || !option->isCheckable()) return Click(&control);
    Settle();
    ClickAt(&control, {10, control.height() / 2}, Qt::LeftButton);
    Settle();
}

// The pages on which a control lies come to the front.
void Reach(QWidget* control) {
    for (QWidget* page = control; page; page = page->parentWidget())
        if (auto* tabs =
                page->parentWidget() ? qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget()) : nullptr)
            tabs->setCurrentWidget(page);
}

}  // namespace

QString SettingInForce(const QString& field) {
    static const QMap<QString, QString Settings::*> fields = {
        {u"NazivFirme"_s, &Settings::NazivFirme},
        {u"Adresa"_s, &Settings::Adresa},
        {u"Tel"_s, &Settings::Tel},
        {u"MjestoProdaje"_s, &Settings::MjestoProdaje},
        {u"Currency"_s, &Settings::Currency},
        {u"PrinterZaRacun"_s, &Settings::PrinterZaRacun},
        {u"PrinterZaIzvjestaj"_s, &Settings::PrinterZaIzvjestaj},
        {u"Emulacija"_s, &Settings::Emulacija},
        {u"RezacPapira"_s, &Settings::RezacPapira},
        {u"TipRacuna"_s, &Settings::TipRacuna},
        {u"RekapPoreza"_s, &Settings::RekapPoreza},
        {u"PrintKasir"_s, &Settings::PrintKasir},
        {u"Footer"_s, &Settings::Footer},
        {u"Font"_s, &Settings::Font},
        {u"VelFont"_s, &Settings::VelFont},
        {u"POSMonitor"_s, &Settings::POSMonitor},
        {u"FiskalniRacunDA"_s, &Settings::FiskalniRacunDA},
        {u"FiskalniFile"_s, &Settings::FiskalniFile},
        {u"ServerName"_s, &Settings::ServerName},
        {u"TrakaRacunaFile"_s, &Settings::TrakaRacunaFile},
        {u"StanjeKaseVidljivo"_s, &Settings::StanjeKaseVidljivo},
        {u"ChangeUser"_s, &Settings::ChangeUser},
    };
    static const QMap<QString, bool Settings::*> flags = {
        {u"Kusur"_s, &Settings::Kusur},
        {u"TrakaRacunaFileDA"_s, &Settings::TrakaRacunaFileDA},
        {u"DisplejKupca"_s, &Settings::DisplejKupca},
        {u"NoviRacunAutomatski"_s, &Settings::NoviRacunAutomatski},
    };
    if (field == u"Kasa") return QString::number(TheSettings.Kasa);
    if (flags.contains(field)) return QString::number(TheSettings.*flags[field]);
    EXPECT_TRUE(fields.contains(field)) << field.toStdString();
    return fields.contains(field) ? TheSettings.*fields[field] : QString();
}

QMap<QString, ScreenCase::Word> ScreenCase::States() {
    return {
        {u"run"_s, [](ScreenCase& at, const QString& rest, const Step&) { at.StoreOf(rest)->Execute(rest); }},
        {u"load"_s,
         [](ScreenCase& at, const QString& rest, const Step& step) {
             QByteArray lines = Joined(Texts(step.inner)).replace(u'|', u'\t').toUtf8();
             QBuffer rows(&lines);
             rows.open(QIODevice::ReadOnly);
             upkeep::LoadRows(*at.StoreOf(rest), rest, rows);
         }},
        {u"login"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             at.loggedIn_ = true;
             if (!rest.isEmpty()) return at.LogIn(rest);
             at.ShowLogin();
             if (auto* login = forms::FindForm(u"frmLogin")) at.GoOnIn(*login);
         }},
        {u"as"_s, [](ScreenCase& at, const QString& rest, const Step&) { at.user_ = rest; }},
        {u"crash"_s,
         [](ScreenCase& at, const QString&, const Step&) {
             at.Crash();
             at.loggedIn_ = false;
         }},
        {u"restart"_s,
         [](ScreenCase& at, const QString&, const Step&) {
             at.Crash();
             at.loggedIn_ = true;
             at.LogIn(at.user_);
         }},
        {u"locale"_s, [](ScreenCase&, const QString& rest, const Step&) { values::SetUserLocale(QLocale(rest)); }},
        {u"clock"_s,
         [](ScreenCase&, const QString& rest, const Step&) {
             values::SetClock([now = QDateTime::fromString(rest, u"yyyy-MM-dd HH:mm:ss"_s)] { return now; });
         }},
        {u"clipboard"_s,
         [](ScreenCase&, const QString& rest, const Step&) { QApplication::clipboard()->setText(rest); }},
        {u"write"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             QFile file(at.Path(rest.section(u" | "_s, 0, 0)));
             EXPECT_TRUE(file.open(QIODevice::WriteOnly));
             file.write(rest.section(u" | "_s, 1).toLatin1());
         }},
        {u"remove"_s,
         [](ScreenCase& at, const QString& rest, const Step&) { EXPECT_TRUE(QFile::remove(at.Path(rest))); }},
        {u"folder"_s,
         [](ScreenCase& at, const QString& rest, const Step&) { EXPECT_TRUE(QDir().mkdir(at.Path(rest))); }},
        {u"stick"_s,
         [](ScreenCase& at, const QString&, const Step&) { EXPECT_TRUE(QDir().mkdir(at.Path({}) + u"-stick"_s)); }},
        {u"backup-program"_s,
         [](ScreenCase&, const QString&, const Step&) {
             UseBackupProgram([](const QString& registerFolder) {
                 QFile notes(registerFolder + u"/started"_s);
                 return notes.open(QIODevice::Append) && notes.write("x") == 1;
             });
         }},
        {u"engine"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             DoBehind(at.folder.path(), rest.section(u" | "_s, 0, 0), rest.section(u" | "_s, 1));
         }},
    };
}

QMap<QString, ScreenCase::Word> ScreenCase::Deeds() {
    return {
        {u"open"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             at.Form();
             auto* entry = mdiORVA::Window().findChild<QAction*>(rest);
             if (!entry) throw std::runtime_error("the menu has no such entry");
             entry->trigger();
             Settle();
         }},
        {u"keys"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             at.Form();
             Keys(rest);
         }},
        {u"go"_s, [](ScreenCase& at, const QString& rest, const Step&) { at.Of<QWidget>(rest).setFocus(); }},
        {u"close"_s, [](ScreenCase& at, const QString&, const Step&) { at.Form().close(); }},
        {u"type"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             const QString name = rest.section(u' ', 0, 0);
             Reach(&at.Of<QWidget>(name));
             Type(*at.Of<QWidget>(name).window(), name, rest.section(u' ', 1));
         }},
        {u"click"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             Reach(&at.Of<QWidget>(rest));
             ClickOn(at.Of<QWidget>(rest));
         }},
        {u"rightclick"_s,
         [](ScreenCase& at, const QString& rest, const Step&) { Click(&at.Of<QWidget>(rest), Qt::RightButton); }},
        {u"tool"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             Click(at.Form().findChild<QToolBar*>()->widgetForAction(&at.Of<QAction>(rest)));
         }},
        {u"tab"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             QTabBar* strip = at.Form().findChild<QTabWidget*>()->tabBar();
             ClickAt(strip, strip->tabRect(rest.toInt()).center(), Qt::LeftButton);
             Settle();
         }},
        {u"in"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             auto* form = forms::FindForm(rest);
             if (!form) throw std::runtime_error("the form is not there");
             at.GoOnIn(*form);
         }},
        {u"selectrow"_s, [](ScreenCase& at, const QString& rest, const Step&) { at.List().Select(rest.toInt()); }},
        {u"clickrow"_s, [](ScreenCase& at, const QString& rest, const Step&) { ClickRow(&at.List(), rest.toInt()); }},
        {u"rightclickrow"_s,
         [](ScreenCase& at, const QString& rest, const Step&) { ClickRow(&at.List(), rest.toInt(), Qt::RightButton); }},
        {u"doubleclickrow"_s,
         [](ScreenCase& at, const QString& rest, const Step&) { DoubleClickRow(&at.List(), rest.toInt()); }},
    };
}

QMap<QString, ScreenCase::Word> ScreenCase::Announcements() {
    return {
        {u"box"_s, [](ScreenCase& at, const QString& rest, const Step&) { ExpectBox(at.boxes_, rest); }},
        {u"pick"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             const QString name = rest.section(u" | "_s, 0, 0);
             at.boxes_.ExpectFile(name.isEmpty() ? name : QDir(at.Path({})).filePath(name));
             if (rest.contains(u" | ")) at.boxes_.Titled(rest.section(u" | "_s, 1));
         }},
        {u"help"_s, [](ScreenCase& at, const QString& rest, const Step&) { ExpectHelp(at.boxes_, rest); }},
    };
}

QMap<QString, ScreenCase::Word> ScreenCase::Checks() {
    return {
        {u"see"_s, [](ScreenCase& at, const QString& rest,
                      const Step&) { ExpectShown(rest, [&](const QString& what) { return at.Shown(what); }); }},
        {u"focus"_s,
         [](ScreenCase&, const QString& rest, const Step&) {
             const QWidget* focus = QApplication::focusWidget();
             ExpectEqual(focus ? focus->objectName() : QString(), rest);
         }},
        {u"title"_s,
         [](ScreenCase& at, const QString& rest, const Step&) { ExpectEqual(at.Form().windowTitle(), rest); }},
        {u"loaded"_s, [](ScreenCase&, const QString& rest,
                         const Step&) { EXPECT_TRUE(forms::FindForm(rest)) << rest.toStdString(); }},
        {u"unloaded"_s, [](ScreenCase&, const QString& rest,
                           const Step&) { EXPECT_FALSE(forms::FindForm(rest)) << rest.toStdString(); }},
        {u"ended"_s,
         [](ScreenCase&, const QString& rest, const Step&) {
             EXPECT_TRUE(forms::ProgramIsEnding());
             EXPECT_EQ(forms::ProgramExitCode(), rest.toInt());
         }},
        {u"goes-on"_s, [](ScreenCase&, const QString&, const Step&) { EXPECT_FALSE(forms::ProgramIsEnding()); }},
        {u"list"_s, [](ScreenCase& at, const QString& rest,
                       const Step& step) { ExpectEqual(Joined(at.ListRows(rest)), Joined(Texts(step.inner))); }},
        {u"row"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             ExpectEqual(at.ListRows().value(rest.section(u' ', 0, 0).toInt()), rest.section(u' ', 1));
         }},
        {u"codes"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             QStringList codes;
             for (const QString& row : at.ListRows()) codes << row.section(u'|', 0, 0);
             ExpectEqual(codes.join(u" | "), rest);
         }},
        {u"count"_s,
         [](ScreenCase& at, const QString& rest, const Step&) { EXPECT_EQ(at.List().Count(), rest.toInt()); }},
        {u"rows"_s,
         [](ScreenCase& at, const QString& rest, const Step& step) {
             ExpectEqual(Joined(RowsOf(*at.StoreOf(rest), rest)), Joined(Texts(step.inner)));
         }},
        {u"runs"_s, [](ScreenCase&, const QString& rest, const Step&) { ExpectShown(rest, SettingInForce); }},
        {u"file"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             ExpectShown(rest, [&](const QString& name) { return QString::fromLatin1(at.File(name)); });
         }},
        {u"nofile"_s,
         [](ScreenCase& at, const QString& rest, const Step&) { EXPECT_FALSE(QFile::exists(at.Path(rest))); }},
        {u"copied"_s,
         [](ScreenCase& at, const QString& rest, const Step&) {
             const QStringList parts = rest.split(u" | "_s);
             EXPECT_EQ(at.File(parts[0]), at.File(parts[1]) + parts.value(2).toLatin1());
         }},
    };
}

}  // namespace drivers
