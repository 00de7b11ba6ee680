#include "store/Schema.h"

#include "store/OptionsTable.h"

using namespace Qt::StringLiterals;

namespace store {

namespace {

Column Text(const QString& name) {
    return {name, Type::Text};
}
Column Whole(const QString& name) {
    return {name, Type::Whole};
}
Column Money(const QString& name) {
    return {name, Type::Money};
}
Column Decimal(const QString& name) {
    return {name, Type::Decimal};
}
Column Quantity(const QString& name) {
    return {name, Type::Quantity};
}
Column Date(const QString& name) {
    return {name, Type::Date};
}
Column Time(const QString& name) {
    return {name, Type::Time};
}
Column YesNo(const QString& name) {
    return {name, Type::YesNo, false};
}
Column Register() {
    return {u"Kas"_s, Type::Whole, 0};
}

Index Key(const QString& column) {
    return {.columns = {column}, .unique = true};
}
Index By(const QStringList& columns) {
    return {.columns = columns};
}
Index ByVal(const QString& column) {
    return {.columns = {column}, .overVal = true};
}

Table Sales() {
    return {u"Sales"_s,
            {Text(u"SalesID"_s), Register(), Text(u"UserID"_s), Date(u"DateGenerated"_s), Time(u"TimeGenerated"_s),
             Money(u"TotalSales"_s), Date(u"DateStoped"_s), Time(u"TimeStoped"_s), YesNo(u"Closed"_s),
             YesNo(u"Payed"_s), Whole(u"Grupni"_s)},
            {By({u"SalesID"_s}), ByVal(u"SalesID"_s), By({u"Closed"_s}), By({u"Grupni"_s}), By({u"DateGenerated"_s}),
             By({u"DateStoped"_s})}};
}

Table Invoices() {
    return {u"Invoices"_s,
            {Register(), Text(u"SalesID"_s), Text(u"InvoiceID"_s), Text(u"OrNo"_s), Text(u"CashierID"_s),
             Text(u"CashierName"_s), Whole(u"PaymentType"_s), Date(u"DateSold"_s), Time(u"TimeSold"_s),
             Money(u"CashAmount"_s), Money(u"TaxTotal"_s), Money(u"CheckAmount"_s), Money(u"CheckNo"_s),
             Text(u"Bank"_s), Text(u"Kupac"_s), Text(u"IB"_s)},
            {By({u"InvoiceID"_s}), ByVal(u"InvoiceID"_s), ByVal(u"OrNo"_s), By({u"DateSold"_s}), By({u"SalesID"_s})}};
}

Table SalesDetails() {
    return {u"SalesDetails"_s,
            {Register(), Text(u"InvoiceID"_s), Text(u"ProdCode"_s), Text(u"ProdDescription"_s), Money(u"UnitPrice"_s),
             Quantity(u"QtySold"_s), Money(u"Amount"_s), Money(u"TaxPercent"_s), Money(u"TaxAmount"_s), Text(u"Unit"_s),
             Text(u"TaxID"_s)},
            {By({u"InvoiceID"_s})}};
}

Table Products() {
    return {u"Products"_s,
            {{.name = u"ID"_s, .type = Type::Whole, .selfNumbering = true},
             Text(u"ProdCode"_s),
             Text(u"ProdDescription"_s),
             Decimal(u"Qty"_s),
             Text(u"Unit"_s),
             Decimal(u"UnitPrice"_s),
             Decimal(u"UnitPricebezPDV"_s),
             Decimal(u"VPUnitPrice"_s),
             Decimal(u"VPUnitPricebezPDV"_s),
             Text(u"TaxID"_s),
             Decimal(u"TaxPercent"_s),
             Text(u"Pict"_s),
             {u"Tab"_s, Type::Whole, -1}},
            {Key(u"ProdCode"_s), By({u"Tab"_s})}};
}

Table ProductsCon() {
    return {u"ProductsCon"_s, {Text(u"SIF"_s), Text(u"CONsif"_s), Quantity(u"ConSIFQty"_s)}, {By({u"SIF"_s})}};
}

Table Tax() {
    return {u"Tax"_s,
            {Text(u"TaxID"_s), Text(u"Name"_s), Decimal(u"Percent"_s), YesNo(u"Del"_s)},
            {Key(u"TaxID"_s), Key(u"Name"_s)}};
}

Table Unit() {
    return {u"Unit"_s, {Text(u"Abr"_s), Text(u"UnitName"_s)}, {Key(u"Abr"_s)}};
}

Table Users() {
    return {u"Users"_s,
            {Text(u"UserID"_s), Text(u"UserName"_s), Text(u"UserFullName"_s), Text(u"UserPosition"_s),
             Text(u"AccLevel"_s), Text(u"Password"_s), YesNo(u"Del"_s)},
            {Key(u"UserID"_s), Key(u"UserName"_s)}};
}

Table Login() {
    return {u"Login"_s,
            {Text(u"LogInNo"_s), Text(u"UserID"_s), Date(u"Date"_s), Time(u"LoginTime"_s), Text(u"AccLevel"_s),
             Date(u"DateOut"_s), Time(u"LogOut"_s), Register()},
            {By({u"LogInNo"_s}), ByVal(u"LogInNo"_s), By({u"Date"_s})}};
}

Table Custumer() {
    return {u"Custumer"_s,
            {Whole(u"Sifra"_s), Text(u"Naziv"_s), Text(u"Adresa"_s), Text(u"JMBG"_s), Text(u"Telefon"_s),
             Text(u"Telefax"_s), Text(u"Vlasnik"_s), Text(u"ZiroRacun"_s), Text(u"RabatMarza"_s)},
            {Key(u"Sifra"_s)}};
}

Table Company() {
    return {u"Company"_s, {Text(u"Adresa"_s), Text(u"Tel"_s), Text(u"Ziro"_s)}, {}};
}

Table TabControl() {
    return {u"TabControl"_s, {Whole(u"TabControl"_s), Text(u"TabDescription"_s)}, {Key(u"TabControl"_s)}};
}

Table Options() {
    Table table{u"Options"_s, {}, {}};
    for (const OptionsColumn& column : OptionsColumns())
        table.columns.append(column.type == Type::YesNo ? YesNo(column.name) : Column{column.name, column.type});
    return table;
}

}  // namespace

QString IndexName(const QString& table, const Index& index) {
    const QString kind = index.unique ? u"Key"_s : index.overVal ? u"Val"_s : u"By"_s;
    return table + kind + index.columns.join(QString());
}

int Table::Find(QStringView column) const {
    for (int i = 0; i < columns.size(); ++i)
        if (columns[i].name.compare(column, Qt::CaseInsensitive) == 0) return i;
    return -1;
}

const Table* Schema::Find(QStringView table) const {
    for (const Table& candidate : tables)
        if (candidate.name.compare(table, Qt::CaseInsensitive) == 0) return &candidate;
    return nullptr;
}

const Schema& MainSchema() {
    static const Schema schema{
        .name = u"ORVA"_s,
        .version = 2,
        .tables = {Sales(), Invoices(), SalesDetails(), Products(), ProductsCon(), Tax(), Unit(), Users(), Login(),
                   Custumer(), Company(), TabControl()},
    };
    return schema;
}

const Schema& OptionsSchema() {
    static const Schema schema{
        .name = u"opt"_s,
        .version = 2,
        .tables = {Options()},
    };
    return schema;
}

}  // namespace store
