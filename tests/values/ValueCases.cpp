#include "support/CaseText.h"
#include "support/ErrorOf.h"
#include "support/UnderLocale.h"
#include "support/ValueOf.h"
#include "values/CashSums.h"
#include "values/Csv.h"
#include "values/DateText.h"
#include "values/Format.h"
#include "values/LineAmount.h"
#include "values/Numbers.h"
#include "values/Tax.h"

using namespace Qt::StringLiterals;
using namespace values;
using drivers::MoneyOf;
using drivers::PlainText;
using drivers::ValueOf;

namespace {

QString Shown(double amount) {
    return Format(amount, u"0.00");
}

// A double by the digits that tell it from every other.
QString Exact(double number) {
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

// The same as it is read whether it is asked for, read as money or as a double.
QString ReadMoney(const QString& text) {
    const int error = ErrorOf([&] { return CMoney(text); });
    EXPECT_EQ(IsNumeric(text), error != TypeMismatch) << text.toStdString();
    EXPECT_EQ(ErrorOf([&] { return CDouble(text); }) == TypeMismatch, error == TypeMismatch) << text.toStdString();
    return PlainText(CMoney(text));
}

QString FormatOfEveryForm(const Value& value, const QString& pattern) {
    const QString text = Format(value, pattern);
    if (value.GetKind() == Value::Kind::Double) {
        EXPECT_EQ(Format(value.ToDouble(), pattern), text);
    } else if (!value.IsNull()) {
        EXPECT_EQ(Format(value.ToText(), pattern), text) << "from a list cell";
    }
    return text;
}

QString FormatDate(const QStringList& at) {
    const QDate date = QDate::fromString(at[0], Qt::ISODate);
    EXPECT_EQ(FormatOfEveryForm(date, at[1]), Format(date, at[1]));
    return Format(date, at[1]);
}

QString FormatTime(const QStringList& at) {
    const QTime time = QTime::fromString(at[0], Qt::ISODate);
    EXPECT_EQ(FormatOfEveryForm(time, at[1]), Format(time, at[1]));
    return Format(time, at[1]);
}

QString Moment(const QStringList& at) {
    const UnderLocale locale{QLocale(at[0])};
    EXPECT_EQ(DateText(QDate()) + TimeText(QTime()), u"");
    return DateText(QDate(2024, 4, 3)) + u", "_s + TimeText(QTime(14, 5, 9, 999));
}

QString Separators(const QStringList& at) {
    const UnderLocale locale{QLocale(at[0])};
    return QString(DecimalSeparatorChar()) + u' ' + GroupSeparatorChar();
}

// All that a value becomes, each as a text or as the error.
QString Conversions(const Value& value) {
    QStringList outcomes;
    const auto add = [&](const std::function<Value()>& convert) {
        try {
            outcomes += convert().ToText();
        } catch (const Error& error) {
            outcomes += u"error %1"_s.arg(error.Number());
        }
    };
    add([&] { return value.ToText(); });
    add([&] { return value.ToMoney(); });
    add([&] { return value.ToDouble(); });
    add([&] { return value.ToWhole(); });
    add([&] { return value.ToBool(); });
    EXPECT_EQ(value.TextOrEmpty(), value.IsNull() ? QString() : outcomes[0]);
    return outcomes.join(u"; "_s);
}

MergedLine Merged(const QStringList& at, double percent) {
    const Money one = Money::FromWhole(1);
    return MergeLines(MoneyOf(at[1]) - one, one, MoneyOf(at[0]).ToDouble(), percent);
}

QString LikelySums(const QStringList& at) {
    QStringList texts;
    for (const Money sum : CashSums(MoneyOf(at[0]))) texts << NumberText(sum);
    return texts.join(u' ');
}

QString Product(const QStringList& at) {
    const Money product = MoneyOf(at[0]) * MoneyOf(at[1]);
    EXPECT_EQ(MoneyOf(at[1]) * MoneyOf(at[0]), product);
    return PlainText(product);
}

// Cells as a row; its line end and the mark before it are taken for granted.
QString CsvRow(const QStringList& at) {
    QList<Value> cells;
    for (const QString& text : at) cells << ValueOf(text);
    const QByteArray csv = CsvText({cells});
    EXPECT_TRUE(csv.startsWith("\xEF\xBB\xBF") && csv.endsWith("\r\n"));
    return QString::fromUtf8(csv.sliced(3).chopped(2));
}

using At = const QStringList&;

const QMap<QString, drivers::Function> Functions{
    {u"CMoney"_s, [](At at) { return ReadMoney(at[0]); }},
    {u"CDouble"_s, [](At at) { return Exact(CDouble(at[0])); }},
    {u"Val"_s, [](At at) { return Exact(Val(at[0])); }},
    {u"CBool"_s, [](At at) { return Value(CBool(at[0])).ToText(); }},
    {u"CInt16"_s, [](At at) { return QString::number(CInt16(at[0].toDouble())); }},
    {u"CInt32"_s, [](At at) { return QString::number(CInt32(at[0].toDouble())); }},
    {u"NumberText of double"_s, [](At at) { return NumberText(at[0].toDouble()); }},
    {u"NumberText of money"_s, [](At at) { return NumberText(MoneyOf(at[0])); }},
    {u"NumberText of whole"_s, [](At at) { return NumberText(at[0].toLongLong()); }},
    {u"Format double"_s, [](At at) { return FormatOfEveryForm(at[0].toDouble(), at[1]); }},
    {u"Format money"_s, [](At at) { return Format(MoneyOf(at[0]), at[1]); }},
    {u"Format text"_s, [](At at) { return Format(at[0], at[1]); }},
    {u"Format value"_s, [](At at) { return Format(ValueOf(at[0]), at[1]); }},
    {u"Format date"_s, FormatDate},
    {u"Format time"_s, FormatTime},
    {u"Moment"_s, Moment},
    {u"Separators"_s, Separators},
    {u"ReadDate"_s, [](At at) { return ReadDate(at[0]) ? ReadDate(at[0])->toString(Qt::ISODate) : u"none"_s; }},
    {u"ReadTime"_s, [](At at) { return ReadTime(at[0]) ? ReadTime(at[0])->toString(Qt::ISODate) : u"none"_s; }},
    {u"Product"_s, Product},
    {u"Sum"_s, [](At at) { return PlainText(MoneyOf(at[0]) + MoneyOf(at[1])); }},
    {u"Difference"_s, [](At at) { return PlainText(MoneyOf(at[0]) - MoneyOf(at[1])); }},
    {u"Negative"_s, [](At at) { return PlainText(-MoneyOf(at[0])); }},
    {u"Money of whole"_s, [](At at) { return PlainText(Money::FromWhole(at[0].toLongLong())); }},
    {u"Money of double"_s, [](At at) { return PlainText(Money::FromDouble(at[0].toDouble())); }},
    {u"New line"_s, [](At at) { return Shown(NewLineAmount(MoneyOf(at[0]), MoneyOf(at[1]))); }},
    {u"Merged line"_s, [](At at) { return Shown(Merged(at, 0).amount); }},
    {u"Contained tax"_s, [](At at) { return Format(ContainedTax(MoneyOf(at[0]), at[1].toDouble()), u"0.00"); }},
    {u"Tax of merged line"_s,
     [](At at) {
         return Shown(Merged({at[0], u"1"_s}, at[1].toDouble()).tax);
     }},
    {u"Price without tax"_s, [](At at) { return Shown(PriceWithoutTax(MoneyOf(at[0]), at[1].toDouble())); }},
    {u"Cash sums"_s, LikelySums},
    {u"CSV row"_s, CsvRow},
    {u"Cut quantity"_s, [](At at) { return NumberText(CutQuantity(MoneyOf(at[0]))); }},
    {u"Conversions"_s, [](At at) { return Conversions(ValueOf(at[0])); }},
    {u"ToDate"_s, [](At at) { return DateText(ValueOf(at[0]).ToDate()); }},
    {u"ToTime"_s, [](At at) { return TimeText(ValueOf(at[0]).ToTime()); }},
};

class ValueCase : public testing::TestWithParam<drivers::CaseText> {};

}  // namespace

TEST_P(ValueCase, GivesWhatItsRowsSay) {
    for (const drivers::Step& step : GetParam().steps.inner) CheckRows(step, Functions);
}

INSTANTIATE_TEST_SUITE_P(Values, ValueCase,
                         testing::ValuesIn(drivers::ReadCases(u"values"_s, {u"numbers"_s, u"format"_s, u"dates"_s,
                                                                            u"amounts"_s, u"values"_s})),
                         [](const auto& info) { return info.param.name.toStdString(); });
