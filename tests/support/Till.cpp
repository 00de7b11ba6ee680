#include "support/Till.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include "app/Start.h"
#include "cashier/Restart.h"
#include "core/BackupStart.h"
#include "core/Session.h"
#include "delivery/Delivery.h"
#include "forms/Program.h"
#include "output/Folder.h"
#include "store/StorePath.h"
#include "support/Engines.h"
#include "upkeep/TableLoader.h"
#include "values/Clock.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;
using values::Value;

namespace drivers {

TillTest::TillTest() {
    delivery::MakeProgramFolder(folder.path(), {.server = ServerForTest()});
    output::SetProgramFolder(folder.path());
    values::SetClock([] { return QDateTime(QDate(2026, 11, 24), QTime(10, 42, 7)); });
    LoadTables(*OpenMain(), u"shop"_s);
    Setting(u"Kusur"_s, false);
}

TillTest::~TillTest() {
    Crash();
    values::SetClock({});
    UseBackupProgram({});
    values::UseLanguage(values::Shown::OnScreens, {});
    values::UseLanguage(values::Shown::OnPaper, {});
    QDir(folder.path() + u"-stick"_s).removeRecursively();
}

void TillTest::Setting(const QString& field, const Value& value) {
    const auto options = store::Database::Open(store::OptionsPlace(folder.path()), store::OptionsSchema());
    auto row = options->OpenRecordset(u"SELECT * FROM Options"_s);
    row.Edit();
    row[field] = value;
    row.Update();
}

void TillTest::ShowLogin() {
    StartProgram();
    Settle();
}

void TillTest::LogIn(const QString& user, const QString& password) {
    ShowLogin();
    Type(Login(), u"txtUserName", user);
    Keys(u"{Enter}");
    Keys(password);
    Keys(u"{Enter}");
    Settle();
}

void TillTest::Crash() {
    ForgetProgram();
}

forms::Form& TillTest::Sales() const {
    auto* form = forms::FindForm(u"frmORVAtouch");
    if (!form) throw std::runtime_error("the sales screen is not loaded");
    return *form;
}

forms::Form& TillTest::Login() const {
    auto* form = forms::FindForm(u"frmLogin");
    if (!form) throw std::runtime_error("the login is not loaded");
    return *form;
}

std::unique_ptr<store::Database> TillTest::OpenMain() const {
    return store::Database::Open(store::MainPlace(folder.path()), store::MainSchema());
}

QStringList TillTest::Rows(const QString& query) const {
    return RowsOf(*OpenMain(), query);
}

void TillTest::Run(const QString& query) const {
    OpenMain()->Execute(query);
}

QByteArray TillTest::File(const QString& name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void LoadTables(store::Database& store, const QString& folder) {
    for (const QFileInfo& table : QDir(QStringLiteral(TEST_DATA "/") + folder).entryInfoList({u"*.tsv"_s})) {
        QFile lines(table.filePath());
        EXPECT_TRUE(lines.open(QIODevice::ReadOnly)) << lines.fileName().toStdString();
        upkeep::LoadRows(store, table.baseName(), lines);
    }
}

void ExpectHelp(Boxes& boxes, const QString& file) {
    boxes.ExpectForm(u"frmHelp"_s, [file](QWidget&) {
        EXPECT_EQ(HelpFileName, file);
        Keys(u"{Esc}");
    });
}

}  // namespace drivers
