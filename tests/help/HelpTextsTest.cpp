// What the delivered help texts say is held against the program: a caption that they name has to stand in it.

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTextBlock>
#include <QTextDocument>

#include "support/Files.h"
#include "support/RtfReader.h"

using namespace Qt::StringLiterals;

namespace {

QString ReadText(const QString& path) {
    return QString::fromUtf8(drivers::ReadFile(path));
}

// As a reader sees it: without the sign of its key, and without blanks around it.
QString Caption(QString text) {
    return text.remove(u'&').trimmed();
}

void AddAll(QSet<QString>& captions, const QString& path, const QRegularExpression& literal) {
    const std::pair<QString, QString> escapes[] = {{u"&amp;"_s, u"&"_s}, {u"&quot;"_s, u"\""_s}, {u"&apos;"_s, u"'"_s}};
    for (const auto& match : literal.globalMatch(ReadText(path))) {
        QString text = match.captured(1);
        for (const auto& [escape, character] : escapes) text.replace(escape, character);
        captions << Caption(text);
    }
}

// Every text of the screens and of the sources, or those of a language.
QSet<QString> ProgramTexts(const QString& language) {
    static const QRegularExpression inForm(u"<string[^>]*>([^<]*)</string>"_s);
    static const QRegularExpression inSource(u"(?:u|tr\\()\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    static const QRegularExpression translated(u"<(?:translation|numerusform)>([^<]*)</"_s);
    QSet<QString> found;
    if (!language.isEmpty()) {
        AddAll(found, QStringLiteral(SOURCE_ROOT "/translations/velton_%1.ts").arg(language), translated);
        return found;
    }
    QDirIterator files(QStringLiteral(SOURCE_ROOT "/src"), {u"*.ui"_s, u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        AddAll(found, path, path.endsWith(u".ui"_s) ? inForm : inSource);
    }
    return found;
}

const QString HelpFolder = QStringLiteral(SOURCE_ROOT "/data/help/");

// A help text in the folder of its language.
class HelpTextsTest : public testing::TestWithParam<QString> {
protected:
    HelpTextsTest() : rtf_(ReadText(HelpFolder + GetParam())), language_(QFileInfo(GetParam()).path()) {
        EXPECT_EQ(ReadRtf(rtf_.toLatin1(), text_).toStdString(), "");
        if (language_ == u".") language_.clear();
    }

    bool IsInProgram(const QString& text) const {
        static QMap<QString, QSet<QString>> texts;
        if (!texts.contains(language_)) texts[language_] = ProgramTexts(language_);
        return texts[language_].contains(Caption(text));
    }
    // "Settings - Taxes": a menu and its entry.
    bool IsMenuPath(const QString& text) const {
        const qsizetype dash = text.indexOf(u" - "_s);
        return dash > 0 && IsInProgram(text.left(dash)) && IsInProgram(text.mid(dash + 3));
    }

    const QString rtf_;
    QString language_;
    QTextDocument text_;
};

TEST_P(HelpTextsTest, UsesOnlyWhatIsShown) {
    const QSet<QString> known = {u"rtf"_s,     u"ansi"_s,  u"ansicpg"_s, u"deff"_s,    u"uc"_s,
                                 u"fonttbl"_s, u"f"_s,     u"fswiss"_s,  u"pard"_s,    u"par"_s,
                                 u"b"_s,       u"fs"_s,    u"ul"_s,      u"li"_s,      u"line"_s,
                                 u"fi"_s,      u"sb"_s,    u"sa"_s,      u"tab"_s,     u"bullet"_s,
                                 u"u"_s,       u"field"_s, u"fldinst"_s, u"fldrslt"_s, u"outlinelevel"_s};
    static const QRegularExpression word(u"\\\\([a-z]+)"_s);
    for (const auto& match : word.globalMatch(rtf_))
        EXPECT_TRUE(known.contains(match.captured(1))) << match.captured(1).toStdString();
}

// Bold words are captions; those that lead a paragraph are when they begin with a key or a number.
TEST_P(HelpTextsTest, NamesCaptionsThatAreThere) {
    static const QRegularExpression key(u"^F\\d+$"_s);
    static const QRegularExpression leadOfCaption(u"^(F\\d+|Esc) ?-|^\\d+\\."_s);
    int captions = 0;
    for (QTextBlock block = text_.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0) continue;
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QString words = piece.fragment().text();
            if (piece.fragment().charFormat().fontWeight() != QFont::Bold || key.match(words).hasMatch()) continue;
            const bool isLead =
                piece == block.begin() && (block.text() == words || block.text().startsWith(words + u'\t'));
            if (isLead && !leadOfCaption.match(words).hasMatch()) continue;
            ++captions;
            EXPECT_TRUE(IsInProgram(words) || IsMenuPath(words)) << words.toStdString();
        }
    }
    EXPECT_GT(captions, 10);
}

TEST_P(HelpTextsTest, QuotesMessagesThatAreThere) {
    static const QRegularExpression quoted(u"[\u201C\u201E]([^\u201C\u201D]+)[\u201C\u201D]"_s);
    for (const auto& match : quoted.globalMatch(text_.toPlainText()))
        EXPECT_TRUE(IsInProgram(match.captured(1))) << match.captured(1).toStdString();
}

TEST_P(HelpTextsTest, LinksToTextsThatAreThere) {
    for (QTextBlock block = text_.begin(); block.isValid(); block = block.next())
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QString target = piece.fragment().charFormat().anchorHref();
            EXPECT_TRUE(target.isEmpty() || QFile::exists(HelpFolder + language_ + u'/' + target))
                << target.toStdString();
        }
}

QStringList Delivered() {
    QStringList texts;
    QDirIterator files(HelpFolder, {u"*.rtf"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) texts << files.next().mid(HelpFolder.size());
    return texts;
}

INSTANTIATE_TEST_SUITE_P(Delivered, HelpTextsTest, testing::ValuesIn(Delivered()), [](const auto& info) {
    return QString(info.param).replace(u'/', u'_').section(u'.', 0, 0).toStdString();
});

}  // namespace
