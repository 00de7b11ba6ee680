#include "store/dialectFuzz.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <random>

using namespace Qt::StringLiterals;

namespace {

QStringList Corpus() {
    const QDir folder(QStringLiteral(TEST_DATA "/dialect/corpus"));
    QStringList texts;
    for (const QString& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        texts += QString::fromUtf8(file.readAll());
    }
    return texts;
}

// Changes a text as careless joining of pieces and values would: cuts, doubled pieces, foreign pieces, strange signs.
class Mutator {
public:
    explicit Mutator(QStringList corpus) : corpus_(std::move(corpus)) {}

    QString Next() {
        QString text = Any(corpus_);
        for (int changes = Below(4); changes >= 0; --changes) Change(text);
        return text;
    }

private:
    int Below(qsizetype bound) { return std::uniform_int_distribution<int>(0, static_cast<int>(bound) - 1)(random_); }
    QString Any(const QStringList& list) { return list[Below(list.size())]; }

    void Change(QString& text) {
        static const QStringList pieces = {u"("_s,
                                           u")"_s,
                                           u"'"_s,
                                           u"\""_s,
                                           u"["_s,
                                           u"]"_s,
                                           u"#"_s,
                                           u"#01-31-2024#"_s,
                                           u"NOT "_s,
                                           u"-"_s,
                                           u" OR "_s,
                                           u" AND "_s,
                                           u" * "_s,
                                           u" & "_s,
                                           u" + 1.5 "_s,
                                           u"/ 2"_s,
                                           u" = "_s,
                                           u" IS NULL"_s,
                                           u" IN (1,2)"_s,
                                           u" LIKE "_s,
                                           u"Null"_s,
                                           u"True"_s,
                                           u"Qty"_s,
                                           u"Unit"_s,
                                           u"Sum(Qty)"_s,
                                           u"Val(Unit)"_s,
                                           u" AS x "_s,
                                           u"x"_s,
                                           u", "_s,
                                           u";"_s,
                                           u" BETWEEN 1 AND 2 "_s,
                                           u"99999999999999999999"_s,
                                           u"0.123456"_s,
                                           QString(QChar(0xD800)),
                                           QString(QChar(0)),
                                           u"š"_s,
                                           u"\n"_s};
        const int place = Below(text.size() + 1);
        switch (Below(5)) {
            case 0:
                text.remove(place, 1 + Below(8));
                break;
            case 1:
                text.insert(place, Any(pieces));
                break;
            case 2:
                text.insert(place, text.mid(Below(text.size() + 1), 1 + Below(30)));
                break;
            case 3:
                text.replace(place, 1 + Below(6), Any(pieces));
                break;
            default:
                text = text.first(place) + Any(corpus_).mid(place);
                break;
        }
    }

    QStringList corpus_;
    std::mt19937 random_{20'240'325};
};

}  // namespace

TEST(DialectFuzz, corpus_shows_no_fault) {
    const QStringList corpus = Corpus();
    ASSERT_GT(corpus.size(), 20);
    for (const QString& text : corpus) EXPECT_EQ(DialectFaultOn(text).toStdString(), "") << text.toStdString();
}

TEST(DialectFuzz, changed_texts_show_no_fault) {
    Mutator mutator(Corpus());
    for (int i = 0; i < 6000; ++i) {
        const QString text = mutator.Next();
        ASSERT_EQ(DialectFaultOn(text).toStdString(), "") << text.toStdString();
    }
}
