#pragma once

#include <QDir>
#include <random>

#include "support/Files.h"

// The query texts of tests/data/dialect, and what becomes of them when they are joined carelessly.
namespace store::test {

using namespace Qt::StringLiterals;

inline const QString DialectFolder = QStringLiteral(TEST_DATA "/dialect/");

inline QString ContentsOf(const QString& path) {
    return QString::fromUtf8(drivers::ReadFile(path));
}

// Changes a text as careless joining of pieces and values would: cuts, doubled pieces, foreign pieces, strange signs.
class Mutator {
public:
    Mutator() {
        for (const QString& name : QDir(DialectFolder + u"corpus"_s).entryList(QDir::Files))
            corpus_ += ContentsOf(DialectFolder + u"corpus/"_s + name);
        pieces_ << QString(QChar(0xD800)) << QString(QChar(0)) << u"\n"_s;
    }
    const QStringList& Corpus() const { return corpus_; }
    QString Next() {
        QString text = Any(corpus_);
        for (int changes = Below(4); changes >= 0; --changes) Change(text);
        return text;
    }

private:
    int Below(qsizetype bound) { return std::uniform_int_distribution<int>(0, static_cast<int>(bound) - 1)(random_); }
    QString Any(const QStringList& list) { return list[Below(list.size())]; }

    void Change(QString& text) {
        const int place = Below(text.size() + 1);
        switch (Below(5)) {
            case 0:
                text.remove(place, 1 + Below(8));
                break;
            case 1:
                text.insert(place, Any(pieces_));
                break;
            case 2:
                text.insert(place, text.mid(Below(text.size() + 1), 1 + Below(30)));
                break;
            case 3:
                text.replace(place, 1 + Below(6), Any(pieces_));
                break;
            default:
                text = text.first(place) + Any(corpus_).mid(place);
                break;
        }
    }

    QStringList corpus_;
    QStringList pieces_ =
        u"(~)~'~\"~[~]~#~#01-31-2024#~NOT ~-~ OR ~ AND ~ * ~ & ~ + 1.5 ~/ 2~ = ~ IS NULL~ IN (1,2)~ LIKE "
        "~Null~True~Qty~Unit~Sum(Qty)~Val(Unit)~ AS x ~x~, ~;~ BETWEEN 1 AND 2 "
        "~99999999999999999999~0.123456~š"_s.split(u'~');
    std::mt19937 random_{20'240'325};
};

}  // namespace store::test
