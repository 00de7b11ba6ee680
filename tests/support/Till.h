#pragma once

#include "core/mdiORVA.h"
#include "forms/Form.h"
#include "support/Answers.h"
#include "support/Rows.h"
#include "support/ScreenTest.h"

namespace drivers {

// A till in a folder of its own: delivered stores plus a handful of goods, ports that write to spool files, a fixed
// clock (24 November 2026, 10:42:07). Helpers act as the cashier does and look at what lies in store and files.
//
//   code      name                  price   unit  tax  stock
//   100       Cola                  1.50    pcs   P    20
//   200       Jabuke crvene         3.90    kg    P    50
//   300       Novine                2.00    pcs   N    10
//   400       Meni dana             9.99    pcs   P    0     made of 2 x 100 and 0.5 x 200
//   3850104003217  Mlijeko 2,8 % 1 l  2.35  pcs   P    30
class TillTest : public ScreenTest {
protected:
    TillTest();
    ~TillTest() override;

    // Changes a setting of the register before the program starts, as velton-store would.
    void Setting(const QString& field, const values::Value& value);
    // Starts the program and logs in; the sales screen comes up.
    void LogIn(const QString& user = QStringLiteral("kasir"), const QString& password = QStringLiteral("1234"));
    void ShowLogin();
    // Ends the running program without any of its own farewells, as a crash does.
    void Crash();

    forms::Form& Sales() const;
    forms::Form& Login() const;
    QString Shown(QStringView control) const { return Box(Sales(), control); }

    // The main store, by another handle than the program's.
    std::unique_ptr<store::Database> OpenMain() const;
    QStringList Rows(const QString& query) const;
    void Run(const QString& query) const;
    QString Path(const QString& name) const { return folder.filePath(name); }
    QByteArray File(const QString& name) const;
};

// Adds the rows of all tables of which a file lies in this folder below tests/data.
void LoadTables(store::Database& store, const QString& folder);

// The help comes up with this text, and is closed again.
void ExpectHelp(Boxes& boxes, const QString& file);

}  // namespace drivers
