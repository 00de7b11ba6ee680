#include "upkeep/goods/GoodsImport.h"

#include <QSet>
#include <algorithm>

#include "upkeep/Findings.h"
#include "upkeep/GoodsFaults.h"
#include "upkeep/Words.h"
#include "upkeep/goods/AmountText.h"
#include "upkeep/goods/CellText.h"

using namespace Qt::StringLiterals;
using values::Money;
using values::Value;

namespace upkeep {

namespace {

constexpr size_t RowsBetweenQuestions = 256;
constexpr qsizetype LongestPicture = 200;

QString Quoted(const QString& text) {
    constexpr qsizetype shown = 40;
    const QString line = text.simplified();
    return line.size() > shown ? line.first(shown) + u"…"_s : line;
}

QString WordsOf(AmountFault fault, const QString& name, const QString& cell, QChar decimal) {
    const QString shown = Quoted(cell);
    switch (fault) {
        case AmountFault::NotANumber:
            return Words::tr("%1: '%2' is no number.").arg(name, shown);
        case AmountFault::UnclearSeparator:
            return Words::tr(
                       "%1: nothing in the file says whether '%2' has decimals or thousands. Say which sign divides "
                       "the decimals.")
                .arg(name, shown);
        case AmountFault::OtherSeparator:
            return Words::tr("%1: '%2' does not fit the other amounts, which have '%3' before the decimals.")
                .arg(name, shown, decimal.isNull() ? QString() : QString(decimal));
        case AmountFault::TooManyDecimals:
            return Words::tr("%1: '%2' has more than four decimals.").arg(name, shown);
        case AmountFault::TooLarge:
            return Words::tr("%1: '%2' is too large.").arg(name, shown);
    }
    return {};
}

// The store's codes that are a number behind zeros, by the number alone.
QHash<QString, QString> CodesBehindZeros(const Assortment& goods) {
    QHash<QString, QString> codes;
    for (const Product& product : goods.Products()) {
        const QString code = product.Code();
        qsizetype zeros = 0;
        while (zeros < code.size() && code[zeros] == u'0') ++zeros;
        if (zeros > 0 && zeros < code.size()) codes.insert(code.sliced(zeros), code);
    }
    return codes;
}

class Importer {
public:
    Importer(store::Database& main, const GoodsSheet& sheet, const ImportOptions& options)
        : sheet_(sheet),
          options_(options),
          goods_(main),
          rules_(main),
          groups_(main),
          behindZeros_(CodesBehindZeros(goods_)) {
        for (const Product& product : goods_.Products())
            if (const Value& button = product[GoodsColumn::Button]; !button.IsNull()) taken_.insert(button.ToWhole());
        RequireSense();
        CountCodes();
    }

    Preview Run(const GoesOn& goesOn) {
        Preview preview;
        preview.groups = groups_.names;
        const auto& rows = sheet_.table.rows;
        preview.rows.reserve(rows.size() - sheet_.headingRow);
        for (size_t row = sheet_.headingRow + 1; row < rows.size(); ++row) {
            if (goesOn && row % RowsBetweenQuestions == 0 && !goesOn())
                throw store::StoreError(store::Cancelled, Words::tr("The look at the table was left."));
            preview.rows.push_back(Look(rows[row]));
        }
        if (!unknownGroups_.isEmpty())
            preview.remarks += Words::tr("The click table has no such groups, so their goods keep their place: %1.")
                                   .arg(FirstFew(unknownGroups_));
        return preview;
    }

private:
    void RequireSense() const {
        if (sheet_.ColumnOf(SheetField::Code) < 0)
            throw store::StoreError(
                store::ItemNotFound,
                Words::tr("No column is known to be the code of the goods. Say which one it is: %1.")
                    .arg(sheet_.Headings().join(u", ")));
        if (!options_.tax.isEmpty() && rules_.FindTax(options_.tax) == nullptr)
            throw store::StoreError(store::ItemNotFound, Words::tr("The shop has no tax '%1'.").arg(options_.tax));
        if (!options_.unit.isEmpty() && rules_.FindUnit(options_.unit) == nullptr)
            throw store::StoreError(store::ItemNotFound, Words::tr("The shop has no unit '%1'.").arg(options_.unit));
    }

    void CountCodes() {
        for (size_t row = sheet_.headingRow + 1; row < sheet_.table.rows.size(); ++row) {
            const TableRow& cells = sheet_.table.rows[row];
            if (const QByteArray key = KeyOf(CodeIn(cells)); !key.isEmpty()) lines_[key] += cells.line;
        }
    }

    QString Cell(const TableRow& row, SheetField field) const {
        const qsizetype column = sheet_.ColumnOf(field);
        return column < 0 || column >= row.cells.size() ? QString() : row.cells[column];
    }

    // As the store has it where it does, blanks and all.
    QString CodeIn(const TableRow& row) const {
        const QString code = TextOfCell(Cell(row, SheetField::Code));
        return goods_.Find(code) != nullptr ? code : code.trimmed();
    }

    PreviewRow Look(const TableRow& row) {
        PreviewRow look;
        look.line = row.line;
        look.code = CodeIn(row);
        look.name = TextOfCell(Cell(row, SheetField::Name)).simplified();
        reasons_.clear();
        known_ = goods_.Find(look.code);
        if (known_ != nullptr && look.name.isEmpty()) look.name = known_->Name();
        CheckShape(row);
        if (reasons_.isEmpty()) CheckCode(look.code);
        if (!reasons_.isEmpty()) return Refused(look);
        if (known_ == nullptr && options_.rows == ImportOptions::Rows::OnlyKnown)
            return LeftOut(look, Words::tr("The goods are new, and only those that are there are changed."));
        if (known_ != nullptr && options_.rows == ImportOptions::Rows::OnlyNew)
            return LeftOut(look, Words::tr("The goods are there already, and only new ones are added."));
        look.change.code = known_ != nullptr ? known_->Code() : look.code;
        look.change.isNew = known_ == nullptr;
        TakeFields(row, look.change);
        if (!reasons_.isEmpty()) return Refused(look);
        look.kind = look.change.isNew             ? RowKind::New
                    : look.change.columns.empty() ? RowKind::Unchanged
                                                  : RowKind::Changed;
        return look;
    }

    PreviewRow Refused(PreviewRow& look) const {
        look.kind = RowKind::Refused;
        look.reasons = reasons_;
        look.change = {};
        return std::move(look);
    }

    static PreviewRow LeftOut(PreviewRow& look, const QString& why) {
        look.kind = RowKind::LeftOut;
        look.reasons = {why};
        return std::move(look);
    }

    void Refuse(const QString& reason) { reasons_ += reason; }

    void CheckShape(const TableRow& row) {
        const qsizetype columns = sheet_.columns.size();
        const bool hasMore = std::any_of(row.cells.begin() + std::min(columns, row.cells.size()), row.cells.end(),
                                         [](const QString& cell) { return !cell.trimmed().isEmpty(); });
        if (row.cells.size() < columns || hasMore)
            return Refuse(
                Words::tr("The row has %1 cells, and the table has %2 columns.").arg(row.cells.size()).arg(columns));
        for (qsizetype i = 0; i < columns; ++i)
            if (sheet_.columns[i] != SheetField::None)
                if (const QString fault = FaultOfCell(row.cells[i]); !fault.isEmpty())
                    Refuse(u"%1: %2"_s.arg(FieldName(sheet_.columns[i]), fault));
    }

    void CheckCode(const QString& code) {
        if (code.isEmpty()) return Refuse(Words::tr("The row has no code."));
        if (const QList<qint64> lines = lines_.value(KeyOf(code)); lines.size() > 1) {
            QStringList named;
            for (const qint64 line : lines) named += QString::number(line);
            Refuse(Words::tr("The code stands more than once in the file, in the lines %1.").arg(FirstFew(named)));
        }
        if (known_ != nullptr) return;
        if (IsShortened(code))
            return Refuse(
                Words::tr("The spreadsheet has spoilt the code: '%1' is a number that it shortened. Give the column "
                          "the format Text there and enter the code anew.")
                    .arg(code));
        if (const QString longer = behindZeros_.value(code); !longer.isEmpty())
            return Refuse(
                Words::tr(
                    "The spreadsheet has spoilt the code: the shop has %1, and the zeros before it are gone. Give "
                    "the column the format Text there and enter the code anew.")
                    .arg(longer));
        if (code.size() > LongestCode)
            Refuse(Words::tr("The code has %1 characters, more than the %2 that the till takes.")
                       .arg(code.size())
                       .arg(LongestCode));
        if (code.contains(u'\'')) Refuse(Words::tr("The code has an apostrophe, by which the till could not find it."));
        if (HasControls(code)) Refuse(Words::tr("The code has a line break or another control character in it."));
    }

    static bool HasControls(const QString& text) {
        return std::ranges::any_of(text, [](QChar c) { return c.category() == QChar::Other_Control; });
    }

    const Value& Before(GoodsColumn column) const {
        static const Value none;
        return known_ != nullptr ? (*known_)[column] : none;
    }

    void Put(GoodsChange& change, GoodsColumn column, const Value& after) const {
        if (change.isNew || Before(column) != after) change.Set(column, Before(column), after);
    }

    void TakeFields(const TableRow& row, GoodsChange& change) {
        if (change.isNew) change.Set(GoodsColumn::Code, {}, change.code);
        TakeText(row, SheetField::Name, GoodsColumn::Name, LongestName, change);
        TakeAmount(row, SheetField::Quantity, GoodsColumn::Quantity, options_.keepQuantity, change);
        TakeUnit(row, change);
        TakeAmount(row, SheetField::Price, GoodsColumn::Price, options_.keepPrice, change);
        TakeTax(row, change);
        TakeText(row, SheetField::Picture, GoodsColumn::Picture, LongestPicture, change);
        // Last, so that no refused row takes a button.
        if (reasons_.isEmpty()) TakeGroup(row, change);
    }

    void TakeText(const TableRow& row, SheetField field, GoodsColumn column, qsizetype longest, GoodsChange& change) {
        const QString raw = TextOfCell(Cell(row, field));
        if (raw == Before(column).TextOrEmpty() && !raw.isEmpty()) return;
        const QString text = raw.trimmed();
        if (text.isEmpty()) {
            if (change.isNew && column == GoodsColumn::Name) Refuse(Words::tr("New goods need a name."));
            if (change.isNew && column == GoodsColumn::Picture) change.Set(column, {}, QString(u""_s));
            return;
        }
        if (text.size() > longest)
            Refuse(Words::tr("%1: the text has %2 characters, more than the %3 that there is room for.")
                       .arg(FieldName(field))
                       .arg(text.size())
                       .arg(longest));
        if (HasControls(text))
            Refuse(
                Words::tr("%1: the text has a line break or another control character in it.").arg(FieldName(field)));
        Put(change, column, text);
    }

    void TakeAmount(const TableRow& row, SheetField field, GoodsColumn column, bool isKept, GoodsChange& change) {
        const QString cell = TextOfCell(Cell(row, field));
        if (cell.trimmed().isEmpty()) {
            if (change.isNew && column == GoodsColumn::Price) Refuse(Words::tr("New goods need a price."));
            if (change.isNew) Put(change, column, Money());
            return;
        }
        if (isKept && !change.isNew) return;
        const auto read = ReadAmount(cell, sheet_.decimal);
        if (const auto* fault = std::get_if<AmountFault>(&read))
            return Refuse(IsShortened(cell) ? Words::tr("%1: the spreadsheet has shortened the number '%2'.")
                                                  .arg(FieldName(field), Quoted(cell))
                                            : WordsOf(*fault, FieldName(field), cell, sheet_.decimal));
        const Money amount = std::get<Money>(read);
        if (!change.isNew && Before(column) == Value(amount)) return;
        if (column == GoodsColumn::Price && amount < Money())
            return Refuse(Words::tr("The price '%1' is below zero.").arg(Quoted(cell)));
        Put(change, column, amount);
    }

    void TakeUnit(const TableRow& row, GoodsChange& change) {
        const QString raw = TextOfCell(Cell(row, SheetField::Unit));
        if (!raw.isEmpty() && KeyOf(raw) == KeyOf(Before(GoodsColumn::Unit).TextOrEmpty())) return;
        QString text = raw.trimmed();
        if (text.isEmpty() && !change.isNew) return;
        if (text.isEmpty()) text = options_.unit;
        if (text.isEmpty()) return Refuse(Words::tr("New goods need a unit, and none is said for those without one."));
        const QString* unit = rules_.UnitMeantBy(text, Before(GoodsColumn::Unit).TextOrEmpty());
        if (unit == nullptr)
            return Refuse(
                Words::tr("The shop has no unit '%1'. It has: %2.").arg(Quoted(text), rules_.units.join(u", ")));
        Put(change, GoodsColumn::Unit, *unit);
    }

    void TakeTax(const TableRow& row, GoodsChange& change) {
        const QString raw = TextOfCell(Cell(row, SheetField::Tax));
        if (!raw.isEmpty() && KeyOf(raw) == KeyOf(Before(GoodsColumn::Tax).TextOrEmpty())) return;
        QString text = raw.trimmed();
        if (text.isEmpty() && !change.isNew) return;
        if (text.isEmpty()) text = options_.tax;
        if (text.isEmpty()) return Refuse(Words::tr("New goods need a tax, and none is said for those without one."));
        const TaxRate* tax = rules_.FindTax(text);
        if (tax == nullptr) tax = TaxOfRate(text);
        if (tax == nullptr) return;
        // The same tax under its rate is no other one.
        if (!change.isNew && KeyOf(tax->id) == KeyOf(Before(GoodsColumn::Tax).TextOrEmpty())) return;
        if (tax->percent.IsNull()) return Refuse(Words::tr("The tax '%1' has no rate.").arg(tax->id));
        Put(change, GoodsColumn::Tax, tax->id);
        Put(change, GoodsColumn::Rate, tax->percent);
    }

    // A rate with decimals speaks for itself, whichever sign the prices have.
    const TaxRate* TaxOfRate(const QString& text) {
        auto read = ReadAmount(text, {});
        if (std::holds_alternative<AmountFault>(read)) read = ReadAmount(text, sheet_.decimal);
        QList<const TaxRate*> found;
        if (const auto* percent = std::get_if<Money>(&read)) {
            for (const TaxRate& tax : rules_.taxes)
                if (tax.percent == Value(*percent)) found += &tax;
            // What the product has already is meant.
            for (const TaxRate* tax : found)
                if (KeyOf(tax->id) == KeyOf(Before(GoodsColumn::Tax).TextOrEmpty())) return tax;
        }
        if (found.size() == 1) return found[0];
        Refuse(
            found.isEmpty()
                ? Words::tr("The shop has no tax '%1'.").arg(Quoted(text))
                : Words::tr("The shop has several taxes of %1; the code of one has to stand here.").arg(Quoted(text)));
        return nullptr;
    }

    void TakeGroup(const TableRow& row, GoodsChange& change) {
        if (change.isNew) change.Set(GoodsColumn::Button, {}, ClickGroups::NoButton);
        const QString text = TextOfCell(Cell(row, SheetField::Group)).trimmed();
        if (text.isEmpty() || KeyOf(text) == KeyOf(groups_.NameOf(Before(GoodsColumn::Button)))) return;
        const auto is = [&](const QString& name) { return KeyOf(name) == KeyOf(text); };
        const auto group = std::ranges::find_if(groups_.names, is);
        if (group == groups_.names.end()) {
            if (!unknownGroups_.contains(text)) unknownGroups_ += text;
            return;
        }
        const qint64 first = (group - groups_.names.begin()) * ClickGroups::ButtonsEach;
        for (qint64 button = first; button < first + ClickGroups::ButtonsEach; ++button) {
            if (taken_.contains(button)) continue;
            taken_.insert(button);
            if (change.isNew) change.columns.pop_back();
            return Put(change, GoodsColumn::Button, button);
        }
        Refuse(Words::tr("The group '%1' of the click table has no free button.").arg(*group));
    }

    const GoodsSheet& sheet_;
    const ImportOptions& options_;
    const Assortment goods_;
    const GoodsRules rules_;
    const ClickGroups groups_;
    const QHash<QString, QString> behindZeros_;
    QHash<QByteArray, QList<qint64>> lines_;
    QSet<qint64> taken_;
    QStringList unknownGroups_;
    // Of the row that is looked at.
    const Product* known_ = nullptr;
    QStringList reasons_;
};

}  // namespace

Preview PreviewGoods(store::Database& main, const GoodsSheet& sheet, const ImportOptions& options,
                     const GoesOn& goesOn) {
    return Importer(main, sheet, options).Run(goesOn);
}

}  // namespace upkeep
