#include "upkeep/goods/GoodsPreview.h"

#include <QHash>
#include <QRegularExpression>
#include <algorithm>

#include "upkeep/GoodsFaults.h"
#include "upkeep/Words.h"
#include "upkeep/goods/ShopGoods.h"
#include "values/FileError.h"
#include "values/Format.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace upkeep {

namespace {

constexpr int RowsBetweenLooks = 256;

QString Shown(Money amount, QStringView pattern) {
    return values::Format(amount, pattern);
}

QString FaultOfCode(const QString& code) {
    static const QRegularExpression spoilt(u"^\\d([.,]\\d+)?[eE]\\+?\\d+$"_s);
    if (code.isEmpty()) return Words::tr("the code is missing");
    if (spoilt.match(code).hasMatch())
        return Words::tr("the spreadsheet has made a rounded number of the code; format its column as text there");
    if (code.startsWith(u'=')) return Words::tr("the code is a formula");
    if (code.contains(u'\'')) return Words::tr("the code has an apostrophe, and can't be looked up");
    if (code.size() > LongestCode) return Words::tr("the code has more than %1 signs").arg(LongestCode);
    return {};
}

// The rows of a table, judged one by one.
class Judge {
public:
    Judge(store::Database& main, const ImportChoice& choice) : choice_(choice), shop_(main) {
        for (auto column = choice.columns.cbegin(); column != choice.columns.cend(); ++column)
            columnOf_[*column] = column.key();
    }

    GoodsRow Of(const TableText::Row& row) const {
        GoodsRow judged{.line = row.line, .code = TextIn(row, GoodsField::Code)};
        if (const QString fault = FaultOfCode(judged.code); !fault.isEmpty()) judged.why << fault;
        const Goods* known = shop_.Find(judged.code);
        if (known != nullptr) {
            judged.code = shop_.SpellingOf(judged.code);
            judged.before = judged.after = *known;
        } else {
            judged.after.unit = choice_.unit;
            judged.after.tax = choice_.tax;
        }
        TakeTexts(row, judged);
        TakeAmounts(row, judged, known != nullptr);
        Decide(judged, known != nullptr);
        return judged;
    }

private:
    QString Cell(const TableText::Row& row, GoodsField field) const {
        return columnOf_.contains(field) ? row.cells.value(columnOf_[field]).trimmed() : QString();
    }
    // With an apostrophe in front a spreadsheet takes what looks like a formula for a text.
    QString TextIn(const TableText::Row& row, GoodsField field) const {
        static const QRegularExpression asText(u"^'(?=[-=+@])"_s);
        return Cell(row, field).remove(asText);
    }

    void TakeTexts(const TableText::Row& row, GoodsRow& judged) const {
        Goods& goods = judged.after;
        if (const QString name = TextIn(row, GoodsField::Name); !name.isEmpty()) goods.name = name;
        if (goods.name.isEmpty()) judged.why << Words::tr("the name is missing");
        if (Cell(row, GoodsField::Name).startsWith(u'=')) judged.why << Words::tr("the name is a formula");
        if (goods.name.size() > LongestName && goods.name != judged.before.name)
            judged.why << Words::tr("the name has more than %1 signs").arg(LongestName);
        if (goods.name.contains(u'\n')) judged.why << Words::tr("the name has a line break");
        if (const QString unit = Cell(row, GoodsField::Unit); !unit.isEmpty()) goods.unit = unit;
        if (const QString spelling = shop_.UnitNamed(goods.unit); !spelling.isEmpty())
            goods.unit = spelling;
        else if (goods.unit != judged.before.unit || goods.unit.isEmpty())
            judged.why << (goods.unit.isEmpty() ? Words::tr("the unit is missing")
                                                : Words::tr("there is no unit \"%1\"").arg(goods.unit));
        TakeTax(Cell(row, GoodsField::Tax), judged);
    }

    // By its code, or by its rate in percent where only one tax has that.
    void TakeTax(const QString& cell, GoodsRow& judged) const {
        Goods& goods = judged.after;
        if (!cell.isEmpty()) goods.tax = cell;
        QString known = shop_.TaxNamed(goods.tax);
        if (const ReadAmount rate = AmountOf(goods.tax, *choice_.decimal); known.isEmpty() && rate.fault.isEmpty())
            known = shop_.TaxOfRate(rate.amount);
        if (!known.isEmpty())
            goods.tax = known;
        else if (goods.tax != judged.before.tax || goods.tax.isEmpty())
            judged.why << (goods.tax.isEmpty() ? Words::tr("the tax is missing")
                                               : Words::tr("there is no tax \"%1\", or several").arg(goods.tax));
    }

    void TakeAmounts(const TableText::Row& row, GoodsRow& judged, bool isKnown) const {
        const QString price = Cell(row, GoodsField::Price), quantity = Cell(row, GoodsField::Quantity);
        if (!price.isEmpty() && !(isKnown && choice_.keepsPrice)) Take(price, judged.after.price, judged);
        if (price.isEmpty() && !isKnown) judged.why << Words::tr("the price is missing");
        if (judged.after.price < Money()) judged.why << Words::tr("the price is negative");
        if (!quantity.isEmpty() && !(isKnown && choice_.keepsQuantity)) Take(quantity, judged.after.quantity, judged);
    }

    void Take(const QString& cell, Money& amount, GoodsRow& judged) const {
        const ReadAmount read = AmountOf(cell, *choice_.decimal);
        if (read.fault.isEmpty())
            amount = read.amount;
        else
            judged.why << read.fault;
    }

    void Decide(GoodsRow& judged, bool isKnown) const {
        using Kind = GoodsRow::Kind;
        if (!judged.why.isEmpty()) return;
        judged.kind = !isKnown ? Kind::New : judged.before == judged.after ? Kind::Unchanged : Kind::Changed;
        if (judged.kind == Kind::New && !choice_.adds) {
            judged.kind = Kind::LeftOut;
            judged.why << Words::tr("new goods are left out");
        } else if (judged.kind == Kind::Changed && !choice_.updates) {
            judged.kind = Kind::LeftOut;
            judged.why << Words::tr("goods that are there are left alone");
        }
    }

    const ImportChoice& choice_;
    const ShopGoods shop_;
    QMap<GoodsField, int> columnOf_;
};

// Which of two rows is meant nobody can tell.
void RefuseTwins(std::vector<GoodsRow>& rows) {
    QHash<QString, QList<size_t>> places;
    for (size_t place = 0; place < rows.size(); ++place)
        if (!rows[place].code.isEmpty()) places[rows[place].code.toCaseFolded()] << place;
    for (const QList<size_t>& twins : std::as_const(places)) {
        if (twins.size() < 2) continue;
        QStringList lines;
        for (const size_t place : twins) lines << QString::number(rows[place].line);
        for (const size_t place : twins) {
            rows[place].kind = GoodsRow::Kind::Refused;
            rows[place].why << Words::tr("the code stands in the lines %1").arg(lines.join(u", "_s));
        }
    }
}

DecimalSign UsualSign() {
    return values::DecimalSeparatorChar() == u',' ? DecimalSign::Comma : DecimalSign::Point;
}

DecimalSign GuessedSign(const TableText& table, const QMap<int, GoodsField>& columns) {
    QStringList cells;
    for (auto column = columns.cbegin(); column != columns.cend(); ++column)
        if (*column == GoodsField::Price || *column == GoodsField::Quantity)
            for (size_t row = 1; row < table.rows.size(); ++row) cells << table.rows[row].cells.value(column.key());
    return GuessDecimalSign(cells).value_or(UsualSign());
}

}  // namespace

QStringList GoodsRow::Changes() const {
    QStringList changes;
    const auto tell = [&changes, this](GoodsField field, const QString& old, const QString& now) {
        if (old == now) return;
        changes << (kind == Kind::New ? u"%1: %2"_s.arg(NameOf(field), now)
                                      : u"%1: %2 → %3"_s.arg(NameOf(field), old, now));
    };
    tell(GoodsField::Name, before.name, after.name);
    tell(GoodsField::Price, Shown(before.price, u"0.00##"), Shown(after.price, u"0.00##"));
    tell(GoodsField::Unit, before.unit, after.unit);
    tell(GoodsField::Tax, before.tax, after.tax);
    tell(GoodsField::Quantity, Shown(before.quantity, u"0.####"), Shown(after.quantity, u"0.####"));
    return changes;
}

int GoodsPreview::Count(GoodsRow::Kind kind) const {
    return static_cast<int>(std::ranges::count(rows, kind, &GoodsRow::kind));
}

GoodsPreview PreviewGoods(store::Database& main, const TableText& table, const ImportChoice& choice,
                          const RowProgress& progress) {
    GoodsPreview preview{.choice = choice, .headings = table.rows.front().cells, .rows = {}};
    if (preview.choice.columns.isEmpty()) preview.choice.columns = GuessColumns(preview.headings);
    if (!preview.choice.columns.values().contains(GoodsField::Code))
        throw values::FileError(values::InvalidCall, Words::tr("No column of the table is known to hold the code. Its "
                                                               "first row has to name the columns."));
    if (!preview.choice.decimal) preview.choice.decimal = GuessedSign(table, preview.choice.columns);
    const Judge judge(main, preview.choice);
    const int all = static_cast<int>(table.rows.size()) - 1;
    preview.rows.reserve(static_cast<size_t>(all));
    for (int row = 0; row < all; ++row) {
        if (progress && row % RowsBetweenLooks == 0 && !progress(row, all))
            throw store::StoreError(store::Cancelled, Words::tr("The table was left."));
        preview.rows.push_back(judge.Of(table.rows[static_cast<size_t>(row) + 1]));
    }
    RefuseTwins(preview.rows);
    return preview;
}

}  // namespace upkeep
