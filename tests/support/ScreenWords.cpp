#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>

#include "core/BackupStart.h"
#include "core/Settings.h"
#include "forms/Program.h"
#include "player/Input.h"
#include "support/Engines.h"
#include "support/Files.h"
#include "support/ScreenCase.h"
#include "support/Server.h"
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

QString SettingInForce(const QString& name) {
    const QMap<QString, QString> heading = {
        {u"NazivFirme"_s, TheSettings.NazivFirme}, {u"Adresa"_s, TheSettings.Adresa}, {u"Tel"_s, TheSettings.Tel}};
    if (heading.contains(name)) return heading[name];
    const auto column = std::ranges::find(store::OptionsColumns(), name, &store::OptionsColumn::name);
    if (column == store::OptionsColumns().end()) throw std::runtime_error("there is no setting " + name.toStdString());
    if (const auto* text = std::get_if<QString store::OptionsRow::*>(&column->member)) return TheSettings.**text;
    if (const auto* flag = std::get_if<bool store::OptionsRow::*>(&column->member))
        return QString::number(TheSettings.**flag);
    return QString::number(TheSettings.*std::get<qint16 store::OptionsRow::*>(column->member));
}

QMap<QString, ScreenCase::Word> ScreenCase::States() {
    return {
        {u"run"_s, [](auto& at, auto& rest, auto&) { at.StoreOf(rest)->Execute(rest); }},
        {u"load"_s,
         [](auto& at, auto& rest, auto& step) {
             QByteArray lines = Joined(Texts(step.inner)).replace(u'|', u'\t').toUtf8();
             QBuffer rows(&lines);
             rows.open(QIODevice::ReadOnly);
             upkeep::LoadRows(*at.StoreOf(rest), rest, rows);
         }},
        {u"login"_s,
         [](auto& at, auto& rest, auto&) {
             at.loggedIn_ = true;
             if (!rest.isEmpty()) return at.LogIn(rest);
             at.ShowLogin();
             if (auto* login = forms::FindForm(u"frmLogin")) at.GoOnIn(*login);
         }},
        {u"as"_s, [](auto& at, auto& rest, auto&) { at.user_ = rest; }},
        {u"crash"_s,
         [](auto& at, auto&, auto&) {
             at.Crash();
             at.loggedIn_ = false;
         }},
        {u"restart"_s,
         [](auto& at, auto&, auto&) {
             at.Crash();
             at.loggedIn_ = true;
             at.LogIn(at.user_);
         }},
        {u"locale"_s, [](auto&, auto& rest, auto&) { values::SetUserLocale(QLocale(rest)); }},
        {u"clock"_s,
         [](auto&, auto& rest, auto&) {
             values::SetClock([now = QDateTime::fromString(rest, u"yyyy-MM-dd HH:mm:ss"_s)] { return now; });
         }},
        {u"clipboard"_s, [](auto&, auto& rest, auto&) { QApplication::clipboard()->setText(rest); }},
        {u"write"_s,
         [](auto& at, auto& rest, auto&) {
             WriteFile(at.Path(rest.section(u" | "_s, 0, 0)), rest.section(u" | "_s, 1).toLatin1());
         }},
        {u"remove"_s, [](auto& at, auto& rest, auto&) { EXPECT_TRUE(QFile::remove(at.Path(rest))); }},
        {u"folder"_s, [](auto& at, auto& rest, auto&) { EXPECT_TRUE(QDir().mkdir(at.Path(rest))); }},
        {u"stick"_s, [](auto& at, auto&, auto&) { EXPECT_TRUE(QDir().mkdir(at.Path({}) + u"-stick"_s)); }},
        {u"backup-program"_s,
         [](auto&, auto&, auto&) {
             UseBackupProgram([](const QString& registerFolder) {
                 QFile notes(registerFolder + u"/started"_s);
                 return notes.open(QIODevice::Append) && notes.write("x") == 1;
             });
         }},
        {u"engine"_s,
         [](auto& at, auto& rest, auto&) {
             DoBehind(at.folder.path(), rest.section(u" | "_s, 0, 0), rest.section(u" | "_s, 1));
         }},
        {u"server"_s,
         [](auto&, auto& rest, auto&) { rest == u"goes" ? Server::Running().Stop() : Server::Running().Start(); }},
    };
}

QMap<QString, ScreenCase::Word> ScreenCase::Deeds() {
    return {
        {u"open"_s,
         [](auto& at, auto& rest, auto&) {
             at.Form();
             auto* entry = mdiORVA::Window().findChild<QAction*>(rest);
             if (!entry) throw std::runtime_error("the menu has no such entry");
             entry->trigger();
             Settle();
         }},
        {u"keys"_s,
         [](auto& at, auto& rest, auto&) {
             at.Form();
             Keys(rest);
         }},
        {u"go"_s, [](auto& at, auto& rest, auto&) { at.Control(rest).setFocus(); }},
        {u"close"_s, [](auto& at, auto&, auto&) { at.Form().close(); }},
        {u"type"_s,
         [](auto& at, auto& rest, auto&) {
             const QString name = rest.section(u' ', 0, 0);
             Reach(&at.Control(name));
             QWidget& form = at.Form();
             Type(form.template findChild<QWidget*>(name) ? form : *at.Control(name).window(), name,
                  rest.section(u' ', 1));
         }},
        {u"click"_s,
         [](auto& at, auto& rest, auto&) {
             Reach(&at.Control(rest));
             ClickOn(at.Control(rest));
         }},
        {u"rightclick"_s, [](auto& at, auto& rest, auto&) { Click(&at.Control(rest), Qt::RightButton); }},
        {u"tool"_s, [](ScreenCase& at, auto& rest,
                       auto&) { Click(at.Form().findChild<QToolBar*>()->widgetForAction(&at.Of<QAction>(rest))); }},
        {u"tab"_s,
         [](ScreenCase& at, auto& rest, auto&) {
             QTabBar* strip = at.Form().findChild<QTabWidget*>()->tabBar();
             ClickAt(strip, strip->tabRect(rest.toInt()).center(), Qt::LeftButton);
             Settle();
         }},
        {u"in"_s,
         [](auto& at, auto& rest, auto&) {
             auto* form = forms::FindForm(rest);
             if (!form) throw std::runtime_error("the form is not there");
             at.GoOnIn(*form);
         }},
        {u"selectrow"_s, [](auto& at, auto& rest, auto&) { at.List().Select(rest.toInt()); }},
        {u"clickrow"_s, [](auto& at, auto& rest, auto&) { ClickRow(&at.List(), rest.toInt()); }},
        {u"rightclickrow"_s, [](auto& at, auto& rest, auto&) { ClickRow(&at.List(), rest.toInt(), Qt::RightButton); }},
        {u"doubleclickrow"_s, [](auto& at, auto& rest, auto&) { DoubleClickRow(&at.List(), rest.toInt()); }},
    };
}

QMap<QString, ScreenCase::Word> ScreenCase::Announcements() {
    return {
        {u"box"_s, [](auto& at, auto& rest, auto&) { ExpectBox(at.boxes_, rest); }},
        {u"pick"_s,
         [](auto& at, auto& rest, auto&) {
             const QString name = rest.section(u" | "_s, 0, 0);
             at.boxes_.ExpectFile(name.isEmpty() ? name : QDir(at.Path({})).filePath(name));
             if (rest.contains(u" | ")) at.boxes_.Titled(rest.section(u" | "_s, 1));
         }},
        {u"help"_s, [](auto& at, auto& rest, auto&) { ExpectHelp(at.boxes_, rest); }},
    };
}

QMap<QString, ScreenCase::Word> ScreenCase::Checks() {
    return {
        {u"see"_s,
         [](auto& at, auto& rest, auto&) { ExpectShown(rest, [&](const QString& what) { return at.Shown(what); }); }},
        {u"focus"_s,
         [](auto&, auto& rest, auto&) {
             const QWidget* focus = QApplication::focusWidget();
             ExpectEqual(focus ? focus->objectName() : QString(), rest);
         }},
        {u"title"_s, [](auto& at, auto& rest, auto&) { ExpectEqual(at.Form().windowTitle(), rest); }},
        {u"loaded"_s, [](auto&, auto& rest, auto&) { EXPECT_TRUE(forms::FindForm(rest)) << rest.toStdString(); }},
        {u"unloaded"_s, [](auto&, auto& rest, auto&) { EXPECT_FALSE(forms::FindForm(rest)) << rest.toStdString(); }},
        {u"comes"_s,
         [](auto& at, auto& rest, auto&) {
             EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(at.Path(rest)); }, 10'000)) << rest.toStdString();
         }},
        {u"ended"_s,
         [](auto&, auto& rest, auto&) {
             EXPECT_TRUE(forms::ProgramIsEnding());
             EXPECT_EQ(forms::ProgramExitCode(), rest.toInt());
         }},
        {u"goes-on"_s, [](auto&, auto&, auto&) { EXPECT_FALSE(forms::ProgramIsEnding()); }},
        {u"list"_s,
         [](auto& at, auto& rest, auto& step) { ExpectEqual(Joined(at.ListRows(rest)), Joined(Texts(step.inner))); }},
        {u"row"_s,
         [](auto& at, auto& rest, auto&) {
             ExpectEqual(at.ListRows().value(rest.section(u' ', 0, 0).toInt()), rest.section(u' ', 1));
         }},
        {u"codes"_s,
         [](auto& at, auto& rest, auto&) {
             QStringList codes;
             for (const QString& row : at.ListRows()) codes << row.section(u'|', 0, 0);
             ExpectEqual(codes.join(u" | "), rest);
         }},
        {u"count"_s, [](auto& at, auto& rest, auto&) { EXPECT_EQ(at.List().Count(), rest.toInt()); }},
        {u"rows"_s,
         [](auto& at, auto& rest, auto& step) {
             ExpectEqual(Joined(RowsOf(*at.StoreOf(rest), rest)), Joined(Texts(step.inner)));
         }},
        {u"runs"_s, [](auto&, auto& rest, auto&) { ExpectShown(rest, SettingInForce); }},
        {u"file"_s,
         [](auto& at, auto& rest, auto&) {
             ExpectShown(rest, [&](const QString& name) { return QString::fromLatin1(at.File(name)); });
         }},
        {u"nofile"_s, [](auto& at, auto& rest, auto&) { EXPECT_FALSE(QFile::exists(at.Path(rest))); }},
        {u"copied"_s,
         [](auto& at, auto& rest, auto&) {
             const QStringList parts = rest.split(u" | "_s);
             EXPECT_EQ(at.File(parts[0]), at.File(parts[1]) + parts.value(2).toLatin1());
         }},
    };
}

}  // namespace drivers
