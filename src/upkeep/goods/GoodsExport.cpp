#include "upkeep/goods/GoodsExport.h"

#include <xlsxwriter.h>

#include <QFile>

#include "upkeep/Words.h"
#include "upkeep/goods/GoodsColumns.h"
#include "upkeep/goods/ShopGoods.h"
#include "values/FileError.h"
#include "values/Format.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto GoodsQuery =
    u"SELECT ProdCode, ProdDescription, UnitPrice, Unit, TaxID, Qty FROM Products ORDER BY ProdCode"_s;
const auto CustomersQuery = u"SELECT * FROM Custumer"_s;

QChar Separator() {
    return values::DecimalSeparatorChar() == u',' ? u';' : u',';
}

QStringList GoodsHeadings() {
    QStringList headings;
    for (const GoodsField field : {GoodsField::Code, GoodsField::Name, GoodsField::Price, GoodsField::Unit,
                                   GoodsField::Tax, GoodsField::Quantity})
        headings << NameOf(field);
    return headings;
}

void WriteFile(const QString& path, const QByteArrayList& lines) {
    values::SaveFile(path, "\xEF\xBB\xBF" + lines.join());
}

QString CellOf(const store::Field& field) {
    return field.TextOrEmpty();
}

}  // namespace

QByteArray CsvLine(const QStringList& cells) {
    static const QString formula = u"=+-@\t\r"_s;
    QStringList written;
    for (QString cell : cells) {
        bool isNumber = false;
        QLocale::c().toDouble(QString(cell).replace(values::DecimalSeparatorChar(), u'.'), &isNumber);
        if (!cell.isEmpty() && formula.contains(cell[0]) && !isNumber) cell.prepend(u'\'');
        const bool quotes = cell.contains(Separator()) || cell.contains(u'"') || cell.contains(u'\n');
        written << (quotes ? u'"' + cell.replace(u'"', u"\"\""_s) + u'"' : cell);
    }
    return (written.join(Separator()) + u"\r\n"_s).toUtf8();
}

int ExportGoodsCsv(store::Database& main, const QString& path) {
    QByteArrayList lines{CsvLine(GoodsHeadings())};
    auto products = main.OpenSnapshot(GoodsQuery);
    for (auto& product : products) {
        const Goods goods = GoodsOf(product);
        lines << CsvLine({product[u"ProdCode"].TextOrEmpty(), goods.name, values::Format(goods.price, u"0.00##"),
                          goods.unit, goods.tax, values::Format(goods.quantity, u"0.####")});
    }
    WriteFile(path, lines);
    return static_cast<int>(lines.size()) - 1;
}

int ExportCustomersCsv(store::Database& main, const QString& path) {
    QStringList headings;
    for (const store::Column& column : store::MainSchema().Find(u"Custumer")->columns) headings << column.name;
    QByteArrayList lines{CsvLine(headings)};
    auto customers = main.OpenSnapshot(CustomersQuery);
    for (auto& customer : customers) {
        QStringList cells;
        for (int column = 0; column < customer.FieldCount(); ++column) cells << CellOf(customer[column]);
        lines << CsvLine(cells);
    }
    WriteFile(path, lines);
    return static_cast<int>(lines.size()) - 1;
}

int ExportGoodsXlsx(store::Database& main, const QString& path) {
    const QString part = path + u".part"_s;
    if (QFile probe(part); !probe.open(QIODevice::WriteOnly)) throw values::FileError(probe, u"write '%1'"_s.arg(path));
    lxw_workbook* book = workbook_new(QFile::encodeName(part).constData());
    lxw_worksheet* sheet = workbook_add_worksheet(book, Words::tr("Goods").toUtf8().constData());
    lxw_format* bold = workbook_add_format(book);
    format_set_bold(bold);
    lxw_format* amount = workbook_add_format(book);
    format_set_num_format(amount, "0.00##");
    for (lxw_col_t column = 0; const QString& heading : GoodsHeadings())
        worksheet_write_string(sheet, 0, column++, heading.toUtf8().constData(), bold);
    worksheet_set_column(sheet, 0, 0, 16, nullptr);
    worksheet_set_column(sheet, 1, 1, 40, nullptr);
    worksheet_freeze_panes(sheet, 1, 0);
    lxw_row_t row = 0;
    auto products = main.OpenSnapshot(GoodsQuery);
    for (auto& product : products) {
        const Goods goods = GoodsOf(product);
        const auto text = [&](lxw_col_t column, const QString& cell) {
            worksheet_write_string(sheet, row, column, cell.toUtf8().constData(), nullptr);
        };
        // The format of the file has no other numbers.
        const auto number = [&](lxw_col_t column, values::Money cell) {
            worksheet_write_number(sheet, row, column, static_cast<double>(cell.Units()) / values::Money::Scale,
                                   amount);
        };
        ++row;
        text(0, product[u"ProdCode"].TextOrEmpty());
        text(1, goods.name);
        number(2, goods.price);
        text(3, goods.unit);
        text(4, goods.tax);
        number(5, goods.quantity);
    }
    if (workbook_close(book) != LXW_NO_ERROR || ::rename(QFile::encodeName(part), QFile::encodeName(path)) != 0) {
        QFile::remove(part);
        throw values::FileError(values::PathFault, Words::tr("The file %1 can't be written.").arg(path));
    }
    return static_cast<int>(row);
}

}  // namespace upkeep
