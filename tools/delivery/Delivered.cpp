#include "delivery/Delivery.h"

#include "store/OptionsTable.h"

using namespace Qt::StringLiterals;
using values::Money;
using values::Value;

namespace delivery {

namespace {

using Fields = QList<std::pair<QStringView, Value>>;

void AddRow(store::Database& database, const QString& table, const Fields& fields) {
    auto rows = database.OpenRecordset(u"SELECT * FROM [%1]"_s.arg(table));
    rows.AddNew();
    for (const auto& [name, value] : fields) rows[name] = value;
    rows.Update();
}

void AddUser(store::Database& main, const QString& id, const QString& name, const QString& level, bool isProtected) {
    AddRow(main, u"Users"_s,
           {{u"UserID", id},
            {u"UserName", name},
            {u"UserFullName", name},
            {u"UserPosition", u""_s},
            {u"AccLevel", level},
            {u"Password", u"1234"_s},
            {u"Del", isProtected}});
}

void AddTax(store::Database& main, const QString& id, const QString& name, int percent, bool isProtected) {
    AddRow(main, u"Tax"_s,
           {{u"TaxID", id}, {u"Name", name}, {u"Percent", Money::FromWhole(percent)}, {u"Del", isProtected}});
}

Fields DeliveredOptions() {
    Fields options;
    for (const auto& column : store::OptionsColumns()) options.append({column.name, column.delivered});
    return options;
}

}  // namespace

void FillMain(store::Database& main) {
    AddUser(main, u"1"_s, u"admin"_s, u"3"_s, true);
    AddUser(main, u"2"_s, u"kasir"_s, u"1"_s, false);
    AddTax(main, u"P"_s, u"PDV 17 %"_s, 17, true);
    AddTax(main, u"N"_s, u"Without tax"_s, 0, false);
    const QList<std::pair<QString, QString>> units{
        {u"pcs"_s, u"piece"_s}, {u"kg"_s, u"kilogram"_s}, {u"l"_s, u"litre"_s}, {u"m"_s, u"metre"_s}};
    for (const auto& [abr, name] : units) AddRow(main, u"Unit"_s, {{u"Abr", abr}, {u"UnitName", name}});
    for (int tab = 1; tab <= 10; ++tab)
        AddRow(main, u"TabControl"_s, {{u"TabControl", tab}, {u"TabDescription", QString::number(tab)}});
    AddRow(main, u"Company"_s, {{u"Adresa", u""_s}, {u"Tel", u""_s}, {u"Ziro", u""_s}});
}

void FillOptions(store::Database& options) {
    AddRow(options, u"Options"_s, DeliveredOptions());
}

}  // namespace delivery
