#include "upkeep/ManagerStore.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <algorithm>

#include "upkeep/ValueText.h"
#include "upkeep/Words.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using store::Type;
using values::Money;

namespace upkeep {

namespace {

const auto CountsQuery = u"SELECT * FROM DrawerCounts"_s;
const auto LastNumberQuery = u"SELECT Max([Number]) FROM DrawerCounts"_s;
const auto DenominationsQuery = u"SELECT * FROM Denominations"_s;

store::Table CountsTable() {
    return {u"DrawerCounts"_s,
            {{u"Number"_s, Type::Whole},
             {u"DateCounted"_s, Type::Date},
             {u"TimeCounted"_s, Type::Time},
             {u"UserID"_s, Type::Text},
             {u"UserName"_s, Type::Text},
             {u"Currency"_s, Type::Text},
             {u"Pieces"_s, Type::Text},
             {u"Counted"_s, Type::Money},
             {u"EndReport"_s, Type::Whole},
             {u"Sold"_s, Type::Money},
             {u"PutIn"_s, Type::Money},
             {u"TakenOut"_s, Type::Money},
             {u"Expected"_s, Type::Money},
             {u"Difference"_s, Type::Money},
             {u"Remark"_s, Type::Text}},
            {{.columns = {u"Number"_s}, .unique = true}}};
}

store::Table DenominationsTable() {
    return {u"Denominations"_s,
            {{u"Currency"_s, Type::Text}, {u"Worths"_s, Type::Text}},
            {{.columns = {u"Currency"_s}, .unique = true}}};
}

QList<Money> PlainWorths(const QString& text) {
    QList<Money> worths;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts))
        worths << ReadValue(word.toUtf8(), Type::Money).ToMoney();
    return worths;
}

QString PlainText(const QList<Money>& worths) {
    QStringList texts;
    for (const Money worth : worths) texts << ShownAmount(worth);
    return texts.join(u' ');
}

QString UsualDenominations(const QString& currency) {
    static const QHash<QString, QString> usual{{u"KM"_s, u"200 100 50 20 10 5 2 1 0.5 0.2 0.1 0.05"_s},
                                               {u"EUR"_s, u"500 200 100 50 20 10 5 2 1 0.5 0.2 0.1 0.05 0.02 0.01"_s},
                                               {u"GBP"_s, u"50 20 10 5 2 1 0.5 0.2 0.1 0.05 0.02 0.01"_s},
                                               {u"CHF"_s, u"1000 200 100 50 20 10 5 2 1 0.5 0.2 0.1 0.05"_s},
                                               {u"RSD"_s, u"5000 2000 1000 500 200 100 50 20 10 5 2 1"_s},
                                               {u"USD"_s, u"100 50 20 10 5 2 1 0.5 0.25 0.1 0.05 0.01"_s}};
    static const QHash<QString, QString> names{
        {u"BAM"_s, u"KM"_s},  {u"€"_s, u"EUR"_s},   {u"EURO"_s, u"EUR"_s}, {u"£"_s, u"GBP"_s},    {u"FR"_s, u"CHF"_s},
        {u"FR."_s, u"CHF"_s}, {u"SFR"_s, u"CHF"_s}, {u"DIN"_s, u"RSD"_s},  {u"DIN."_s, u"RSD"_s}, {u"$"_s, u"USD"_s}};
    const QString key = currency.trimmed().toUpper();
    return usual.value(names.value(key, key));
}

// "200 x 3" is written as 200*3.
QString PiecesText(const Denominations& denominations) {
    QStringList texts;
    for (const auto& [worth, pieces] : denominations)
        if (pieces != 0) texts << u"%1*%2"_s.arg(ShownAmount(worth)).arg(pieces);
    return texts.join(u' ');
}

Denominations ReadPieces(const QString& text) {
    Denominations denominations;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts))
        denominations << Denomination{ReadValue(word.section(u'*', 0, 0).toUtf8(), Type::Money).ToMoney(),
                                      ReadValue(word.section(u'*', 1).toUtf8(), Type::Whole).ToWhole()};
    return denominations;
}

}  // namespace

const store::Schema& ManagerSchema() {
    static const store::Schema schema{
        .name = u"manager"_s, .version = 1, .tables = {CountsTable(), DenominationsTable()}};
    return schema;
}

std::unique_ptr<store::Database> OpenManagerStore(const QString& folder) {
    const QString path = QDir(folder).filePath(ManagerFile);
    if (!QFile::exists(path)) return store::Database::Create(path, ManagerSchema());
    return store::Database::Open(path, ManagerSchema());
}

Money SumOf(const Denominations& denominations) {
    Money sum;
    for (const auto& [worth, pieces] : denominations) sum += worth * Money::FromWhole(pieces);
    return sum;
}

QList<Money> DenominationsOf(store::Database* manager, const QString& currency) {
    if (manager) {
        auto rows = manager->OpenSnapshot(DenominationsQuery);
        for (auto& row : rows)
            if (row[u"Currency"].TextOrEmpty() == currency.trimmed().toUpper())
                return PlainWorths(row[u"Worths"].TextOrEmpty());
    }
    return PlainWorths(UsualDenominations(currency));
}

void ChooseDenominations(store::Database& manager, const QString& currency, QList<Money> worths) {
    const QString key = currency.trimmed().toUpper();
    auto rows = manager.OpenRecordset(DenominationsQuery);
    while (!rows.AtEOF() && rows[u"Currency"].TextOrEmpty() != key) rows.MoveNext();
    if (rows.AtEOF()) {
        rows.AddNew();
        rows[u"Currency"] = key;
    } else {
        rows.Edit();
    }
    rows[u"Worths"] = PlainText(worths);
    rows.Update();
}

QList<Money> ReadDenominations(const QString& text) {
    static const QRegularExpression between(u"[\\s;]+"_s);
    QList<Money> worths;
    for (const QString& word : text.split(between, Qt::SkipEmptyParts)) {
        const Money worth = values::IsNumeric(word) ? values::CMoney(word) : Money();
        if (worth <= Money())
            throw values::Error(values::TypeMismatch, Words::tr("'%1' is no amount above zero.").arg(word));
        if (!worths.contains(worth)) worths << worth;
    }
    if (worths.isEmpty())
        throw values::Error(values::TypeMismatch,
                            Words::tr("There is no amount. Type some, with a blank between two."));
    std::ranges::sort(worths, std::greater());
    return worths;
}

QString DenominationsText(const QList<Money>& worths) {
    QStringList texts;
    for (const Money worth : worths) texts << values::NumberText(worth);
    return texts.join(u"  "_s);
}

qint64 KeepCount(store::Database& manager, const DrawerCount& count) {
    store::Database::Batch batch(manager);
    auto last = manager.OpenSnapshot(LastNumberQuery);
    const qint64 number = last[0].IsNull() ? 1 : last[0].Whole() + 1;
    auto rows = manager.OpenRecordset(CountsQuery);
    rows.AddNew();
    rows[u"Number"] = number;
    rows[u"DateCounted"] = count.day;
    rows[u"TimeCounted"] = count.time;
    rows[u"UserID"] = count.userID;
    rows[u"UserName"] = count.userName;
    rows[u"Currency"] = count.currency;
    rows[u"Pieces"] = PiecesText(count.pieces);
    rows[u"Counted"] = count.counted;
    rows[u"EndReport"] = count.endReport;
    rows[u"Sold"] = count.sold;
    rows[u"PutIn"] = count.putIn;
    rows[u"TakenOut"] = count.takenOut;
    rows[u"Expected"] = count.Expected();
    rows[u"Difference"] = count.Difference();
    rows[u"Remark"] = count.remark;
    rows.Update();
    batch.Commit();
    return number;
}

QList<DrawerCount> KeptCounts(store::Database& manager) {
    QList<DrawerCount> counts;
    auto rows = manager.OpenSnapshot(CountsQuery + u" ORDER BY [Number] DESC"_s);
    for (auto& row : rows)
        counts << DrawerCount{.number = row[u"Number"].Whole(),
                              .day = row[u"DateCounted"].Get().ToDate(),
                              .time = row[u"TimeCounted"].Get().ToTime(),
                              .userID = row[u"UserID"].TextOrEmpty(),
                              .userName = row[u"UserName"].TextOrEmpty(),
                              .currency = row[u"Currency"].TextOrEmpty(),
                              .pieces = ReadPieces(row[u"Pieces"].TextOrEmpty()),
                              .counted = row[u"Counted"].Money(),
                              .endReport = row[u"EndReport"].Whole(),
                              .sold = row[u"Sold"].Money(),
                              .putIn = row[u"PutIn"].Money(),
                              .takenOut = row[u"TakenOut"].Money(),
                              .remark = row[u"Remark"].TextOrEmpty()};
    return counts;
}

}  // namespace upkeep
