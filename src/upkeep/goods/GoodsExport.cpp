#include "upkeep/goods/GoodsExport.h"

#include <limits>

#include "upkeep/TableLoader.h"
#include "upkeep/Words.h"
#include "upkeep/goods/Assortment.h"
#include "upkeep/goods/GoodsRules.h"
#include "upkeep/goods/SheetField.h"

using namespace Qt::StringLiterals;
using values::Value;

namespace upkeep {

namespace {

Value FieldOf(const Product& product, SheetField field, const ClickGroups& groups) {
    switch (field) {
        case SheetField::Code:
            return product[GoodsColumn::Code];
        case SheetField::Name:
            return product[GoodsColumn::Name];
        case SheetField::Price:
            return product[GoodsColumn::Price];
        case SheetField::Quantity:
            return product[GoodsColumn::Quantity];
        case SheetField::Unit:
            return product[GoodsColumn::Unit];
        case SheetField::Tax:
            return product[GoodsColumn::Tax];
        case SheetField::Group:
            return groups.NameOf(product[GoodsColumn::Button]);
        case SheetField::Picture:
            return product[GoodsColumn::Picture];
        case SheetField::None:
            break;
    }
    return {};
}

void AddRows(store::Database& main, const QStringList& fields, const QString& table, Sheet& sheet) {
    auto listing = main.ReadListing(u"SELECT [%1] FROM [%2]"_s.arg(fields.join(u"], ["), table));
    const qint64 count = listing.WaitFor(std::numeric_limits<qint64>::max());
    sheet.rows.reserve(static_cast<size_t>(count));
    for (qint64 row = 0; row < count; ++row) {
        auto& cells = sheet.rows.emplace_back();
        for (int i = 0; i < fields.size(); ++i) cells.push_back(listing.At(row, i));
    }
}

}  // namespace

Sheet GoodsSheetOf(store::Database& main) {
    Sheet sheet{.name = Words::tr("Goods"), .columns = {}, .rows = {}};
    for (const SheetField field : SheetFields())
        sheet.columns.push_back({FieldName(field), field == SheetField::Price});
    const ClickGroups groups(main);
    const Assortment goods(main);
    sheet.rows.reserve(goods.Products().size());
    for (const Product& product : goods.Products()) {
        auto& cells = sheet.rows.emplace_back();
        for (const SheetField field : SheetFields()) cells.push_back(FieldOf(product, field, groups));
    }
    return sheet;
}

Sheet CustomersSheetOf(store::Database& main) {
    Sheet sheet{.name = Words::tr("Customers"), .columns = {}, .rows = {}};
    for (const QString& heading :
         {Words::tr("Code"), Words::tr("Name"), Words::tr("Address"), Words::tr("Identification number"),
          Words::tr("Telephone"), Words::tr("Fax"), Words::tr("Owner"), Words::tr("Account"), Words::tr("Discount")})
        sheet.columns.push_back({heading});
    AddRows(main,
            {u"Sifra"_s, u"Naziv"_s, u"Adresa"_s, u"JMBG"_s, u"Telefon"_s, u"Telefax"_s, u"Vlasnik"_s, u"ZiroRacun"_s,
             u"RabatMarza"_s},
            u"Custumer"_s, sheet);
    return sheet;
}

Sheet TableSheetOf(store::Database& main, const QString& name) {
    const store::Table& table = FindTable(main, name);
    Sheet sheet{.name = table.name, .columns = {}, .rows = {}};
    QStringList fields;
    for (const store::Column& column : table.columns) {
        fields += column.name;
        sheet.columns.push_back({column.name});
    }
    AddRows(main, fields, table.name, sheet);
    return sheet;
}

}  // namespace upkeep
