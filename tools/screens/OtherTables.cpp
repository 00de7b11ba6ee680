#include "forms/ListView.h"
#include "screens/Tour.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// A list with the entry of its rows. Nothing of what is typed is stored.
struct Table {
    QString entry;
    QString list;
    QString newRow;
    QString typed;
    QString editRow;
    int edited;
    QStringList pictures;  // of the list, the new row, the edited one
};

const Table Tables[] = {
    {u"mnuPorez"_s,
     u"frmTax"_s,
     u"frmNewTax"_s,
     u"S{Enter}Lower rate{Enter}5"_s,
     u"frmEditTax"_s,
     1,
     {u"taxes"_s, u"new-tax"_s, u"edit-tax"_s}},
    {u"mnuUsers"_s,
     u"frmUsers"_s,
     u"frmNewUser"_s,
     u"5{Enter}ivana{Enter}{Down}{Enter}secret{Enter}secret"_s,
     u"frmEditUser"_s,
     2,
     {u"users"_s, u"new-user"_s, u"edit-user"_s}},
    {u"mnuKupci"_s,
     u"frmKupci"_s,
     u"frmNewKupac"_s,
     u"9{Enter}Hotel Park{Enter}Park bb, Brijeg{Enter}4200000000097{Enter}033 555 190{Enter}{Enter}{Enter}{Enter}7.5"_s,
     u"frmEditKupac"_s,
     3,
     {u"customers"_s, u"new-customer"_s, u"edit-customer"_s}},
};

void Keep(Cashier& cashier, const Table& table) {
    cashier.List(table.list)->Select(table.edited);
    cashier.TakePicture(table.pictures[0]);
    cashier.Within(table.newRow, [&] {
        cashier.Press(table.typed);
        cashier.TakePicture(table.pictures[1]);
        cashier.Press(u"{F12}"_s);
    });
    cashier.PressAndAnswer(u"{F5}"_s);
    cashier.List(table.list)->Select(table.edited);
    cashier.Within(table.editRow, [&] {
        cashier.TakePicture(table.pictures[2]);
        cashier.Press(u"{F12}"_s);
    });
    cashier.PressAndAnswer(u"{F4}"_s);
    cashier.Press(u"{F12}"_s);
}

}  // namespace

void Tour::KeepOtherTables() {
    for (const Table& table : Tables) cashier.Visit(table.entry, table.list, [&] { Keep(cashier, table); });
    cashier.Visit(u"mnuLozinka"_s, u"frmChangePassword"_s, [this] {
        cashier.Press(u"new secret{Enter}new secret"_s);
        cashier.TakePicture(u"own-password"_s);
        cashier.Press(u"{F12}"_s);
    });
    cashier.Visit(u"cmdFirma"_s, u"frmFirma"_s, Glance(u"company"_s));
}

}  // namespace screens
