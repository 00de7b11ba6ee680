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
#include "values/Clock.h"

using namespace Qt::StringLiterals;
using values::Value;

namespace drivers {

namespace {

struct Goods {
    QStringView code;
    QStringView name;
    qint64 price;  // ten-thousandths
    QStringView unit;
    QStringView tax;
    qint64 stock;
};

const Goods ShopGoods[] = {
    {u"100", u"Cola", 15000, u"pcs", u"P", 20},
    {u"200", u"Jabuke crvene", 39000, u"kg", u"P", 50},
    {u"300", u"Novine", 20000, u"pcs", u"N", 10},
    {u"400", u"Meni dana", 99900, u"pcs", u"P", 0},
    {u"3850104003217", u"Mlijeko 2,8 % 1 l", 23500, u"pcs", u"P", 30},
};

void AddPart(store::Recordset& recipe, const QString& product, const QString& part, qint64 tenThousandths) {
    recipe.AddNew();
    recipe[u"SIF"] = product;
    recipe[u"CONsif"] = part;
    recipe[u"ConSIFQty"] = values::Money::FromUnits(tenThousandths);
    recipe.Update();
}

}  // namespace

TillTest::TillTest() {
    delivery::MakeProgramFolder(folder.path(), {.server = ServerForTest()});
    output::SetProgramFolder(folder.path());
    values::SetClock([] { return QDateTime(QDate(2026, 11, 24), QTime(10, 42, 7)); });
    AddGoods();
    Setting(u"Kusur"_s, false);
}

TillTest::~TillTest() {
    Crash();
    values::SetClock({});
    UseBackupProgram({});
    QDir(folder.path() + u"-stick"_s).removeRecursively();
}

void TillTest::AddGoods() {
    const auto main = OpenMain();
    auto products = main->OpenRecordset(u"SELECT * FROM Products"_s);
    for (const Goods& goods : ShopGoods) {
        products.AddNew();
        products[u"ProdCode"] = goods.code.toString();
        products[u"ProdDescription"] = goods.name.toString();
        products[u"UnitPrice"] = values::Money::FromUnits(goods.price);
        products[u"Unit"] = goods.unit.toString();
        products[u"TaxID"] = goods.tax.toString();
        products[u"TaxPercent"] = goods.tax[0] == u'P' ? 17 : 0;
        products[u"Qty"] = goods.stock;
        products.Update();
    }
    auto recipe = main->OpenRecordset(u"SELECT * FROM ProductsCon"_s);
    AddPart(recipe, u"400"_s, u"100"_s, 20000);
    AddPart(recipe, u"400"_s, u"200"_s, 5000);
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

QStringList RowsOf(store::Database& store, const QString& query) {
    auto rs = store.OpenRecordset(query);
    QStringList rows;
    for (auto& row : rs) {
        QStringList cells;
        for (int column = 0; column < row.FieldCount(); ++column) cells << row[column].TextOrEmpty();
        rows << cells.join(u'|');
    }
    return rows;
}

void ExpectHelp(Boxes& boxes, const QString& file) {
    boxes.ExpectForm(u"frmHelp"_s, [file](QWidget&) {
        EXPECT_EQ(HelpFileName, file);
        Keys(u"{Esc}");
    });
}

}  // namespace drivers
