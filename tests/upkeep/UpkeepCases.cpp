#include <QFile>
#include <QTemporaryDir>

#include "support/CaseText.h"
#include "support/ValueOf.h"
#include "upkeep/labels/Barcode.h"
#include "upkeep/labels/LabelSheet.h"
#include "upkeep/labels/UnitPrice.h"
#include "upkeep/server/ServerAddress.h"

using namespace Qt::StringLiterals;
using namespace upkeep;

namespace {

using At = const QStringList&;

QString Number(double number) {
    return QString::number(number, 'f', 2);
}

QString MeasureName(Measure measure) {
    return measure == Measure::Kilogram ? u"kg"_s : u"l"_s;
}

QString BarcodeName(At at) {
    switch (BarcodeOf(at[0])) {
        case Barcode::Ean13:
            return u"EAN-13"_s;
        case Barcode::Ean8:
            return u"EAN-8"_s;
        case Barcode::Code128:
            return u"Code 128"_s;
        case Barcode::None:
            break;
    }
    return u"none"_s;
}

QString ContentText(At at) {
    const auto content = ContentOf(at[0]);
    return content ? u"%1 %2"_s.arg(content->millionths).arg(MeasureName(content->measure)) : u"none"_s;
}

QString UnitPriceText(At at) {
    const auto price = UnitPriceOf(at[0], at[1], drivers::MoneyOf(at[2]));
    if (!price) return u"none"_s;
    return u"%1 a %2%3"_s.arg(drivers::PlainText(price->price), MeasureName(price->measure),
                              price->isThePrice ? u", the price"_s : QString());
}

// A common sheet by its number, or "width x height, columns x rows, left top, gap gap".
LabelSheet SheetOf(const QString& text) {
    bool isNumber = false;
    if (const int number = text.toInt(&isNumber); isNumber) return CommonSheets().at(static_cast<size_t>(number));
    const QStringList all = QString(text).replace(u'x', u' ').replace(u',', u' ').split(u' ', Qt::SkipEmptyParts);
    const auto at = [&](int i) { return all.value(i).toDouble(); };
    if (all.size() == 2) return SingleLabel({at(0), at(1)});
    return {.paper = A4,
            .label = {at(0), at(1)},
            .columns = all[2].toInt(),
            .rows = all[3].toInt(),
            .first = {at(4), at(5)},
            .gap = {at(6), at(7)}};
}

QString Corners(const QRectF& place) {
    return u"%1 %2 to %3 %4"_s.arg(Number(place.left()), Number(place.top()), Number(place.right()),
                                   Number(place.bottom()));
}

const QStringList Encryptions{u"offered"_s, u"always"_s, u"checked"_s};

QString UrlText(At at) {
    const ServerAddress address{
        .host = at[0],
        .database = at[1],
        .user = at[2],
        .schema = at[3],
        .encryption = static_cast<ServerAddress::Encryption>(Encryptions.indexOf(at[4])),
    };
    return address.Url();
}

QString BoxesText(At at) {
    const ServerAddress address = ServerAddress::Of(store::Place::Server(at[0]));
    const QString& encryption = Encryptions[static_cast<int>(address.encryption)];
    return QStringList{address.host, address.database, address.user, address.schema, encryption}.join(u"; "_s);
}

QString PasswordLines(At at) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"passwords"_s);
    qputenv("PGPASSFILE", QFile::encodeName(path));
    KeepPassword(ServerAddress::Of(store::Place::Server(at[0])), at[1]);
    QFile file(path);
    const bool isRead = file.open(QIODevice::ReadOnly);
    const bool isShared = file.permissions().testAnyFlags(QFile::ReadGroup | QFile::ReadOther);
    return !isRead || isShared ? u"not for its user alone"_s : QString::fromUtf8(file.readAll());
}

const QMap<QString, drivers::Function> Functions{
    {u"Check digit"_s, [](At at) { return EndsWithCheckDigit(at[0]) ? u"right"_s : u"wrong"_s; }},
    {u"Barcode"_s, BarcodeName},
    {u"Content"_s, ContentText},
    {u"Unit price"_s, UnitPriceText},
    {u"Cell"_s, [](At at) { return Corners(CellOf(SheetOf(at[0]), at[1].toInt())); }},
    {u"Printable"_s, [](At at) { return Corners(PrintableOf(SheetOf(at[0]), at[1].toInt())); }},
    {u"Address"_s, UrlText},
    {u"Boxes"_s, BoxesText},
    {u"Password lines"_s, PasswordLines},
    {u"Sheets"_s, [](At at) { return QString::number(SheetsFor(SheetOf(at[0]), at[1].toInt(), at[2].toInt())); }},
    {u"Fault"_s,
     [](At at) {
         const QString fault = FaultOf(SheetOf(at[0]));
         return fault.isEmpty() ? u"none"_s : fault;
     }},
};

class UpkeepCase : public testing::TestWithParam<drivers::CaseText> {};

}  // namespace

TEST_P(UpkeepCase, GivesWhatItsRowsSay) {
    for (const drivers::Step& step : GetParam().steps.inner) CheckRows(step, Functions);
}

INSTANTIATE_TEST_SUITE_P(Upkeep, UpkeepCase,
                         testing::ValuesIn(drivers::ReadCases(u"upkeep"_s, {u"labels"_s, u"server"_s})),
                         [](const auto& info) { return info.param.name.toStdString(); });

// What is sold as a sheet fits its paper, and its labels lie apart.
TEST(LabelSheet, CommonSheetsFitTheirPaper) {
    for (const LabelSheet& sheet : CommonSheets()) {
        EXPECT_EQ(FaultOf(sheet), QString());
        const QRectF first = CellOf(sheet, 0), last = CellOf(sheet, sheet.Count() - 1);
        EXPECT_NEAR(first.left(), sheet.paper.width() - last.right(), 0.15);
        EXPECT_NEAR(first.top(), sheet.paper.height() - last.bottom(), 0.15);
    }
}
