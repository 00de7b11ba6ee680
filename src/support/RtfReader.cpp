#include "support/RtfReader.h"

#include <QGuiApplication>
#include <QHash>
#include <QPalette>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <vector>

#include "output/CodePage.h"
#include "support/RtfLexer.h"
#include "support/SupportWords.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t DeepestGroup = 200;
constexpr int DefaultSize = 24;  // half points

int PixelsOfHalfPoints(int size) {
    return qBound(12, size, 144) * 2 / 3;
}

// What hangs out of its paragraph has a tab stop at the paragraph's edge; a document counts it from the first line's
// start.
QTextBlockFormat WithTabStop(QTextBlockFormat paragraph) {
    if (paragraph.textIndent() < 0)
        paragraph.setTabPositions({QTextOption::Tab(-paragraph.textIndent(), QTextOption::LeftTab)});
    return paragraph;
}

qreal PixelsOfTwips(int twips) {
    return qBound(-1000, twips / 15, 1000);
}

QTextCharFormat PlainLetters() {
    QTextCharFormat letters;
    letters.setProperty(QTextFormat::FontPixelSize, PixelsOfHalfPoints(DefaultSize));
    return letters;
}

// Where the text of a group goes.
enum class Destination { Document, Instruction, Nowhere };

// What a group may change, and what its end brings back.
struct GroupState {
    QTextCharFormat letters = PlainLetters();
    QTextBlockFormat paragraph;
    int fallbackLength = 1;  // characters that stand behind each \u for those who do not know it
    Destination destination = Destination::Document;
};

class Reader {
public:
    Reader(const QByteArray& rtf, QTextDocument& document) : lexer_(rtf), cursor_(&document) {}

    QString Read();

    GroupState& Group() { return groups_.back(); }
    void SetCodePage(int page) { codePage_ = page; }
    void BeginInstruction();
    void BeginResult();
    void AddCharacter(char16_t character);
    void AddUnicode(int code);
    void EndParagraph();

private:
    QString ReadGroups();
    void Obey(const RtfToken& word);
    void AddText(const QByteArray& bytes);
    void Insert(const QString& text);
    void EndLastParagraph();

    RtfLexer lexer_;
    QTextCursor cursor_;
    std::vector<GroupState> groups_;
    QString instruction_;  // of the field that is being read
    int codePage_ = 1252;
    qsizetype fallbackLeft_ = 0;
};

using Action = void (*)(Reader& reader, const RtfToken& word);

void SkipGroup(Reader& reader, const RtfToken&) {
    reader.Group().destination = Destination::Nowhere;
}

template <char16_t Character>
void Add(Reader& reader, const RtfToken&) {
    reader.AddCharacter(Character);
}

template <Qt::AlignmentFlag Side>
void Align(Reader& reader, const RtfToken&) {
    reader.Group().paragraph.setAlignment(Side);
}

template <void (QTextBlockFormat::*Set)(qreal)>
void SetDistance(Reader& reader, const RtfToken& word) {
    (reader.Group().paragraph.*Set)(PixelsOfTwips(word.value));
}

void SetSize(Reader& reader, const RtfToken& word) {
    reader.Group().letters.setProperty(QTextFormat::FontPixelSize, PixelsOfHalfPoints(word.ValueOr(DefaultSize)));
}

const QHash<QByteArray, Action>& Actions() {
    static const QHash<QByteArray, Action> actions = {
        {"*", SkipGroup},
        {"fonttbl", SkipGroup},
        {"colortbl", SkipGroup},
        {"stylesheet", SkipGroup},
        {"info", SkipGroup},
        {"pict", SkipGroup},
        {"header", SkipGroup},
        {"footer", SkipGroup},

        {"fldinst", [](Reader& reader, const RtfToken&) { reader.BeginInstruction(); }},
        {"fldrslt", [](Reader& reader, const RtfToken&) { reader.BeginResult(); }},

        {"ansicpg", [](Reader& reader, const RtfToken& word) { reader.SetCodePage(word.value); }},
        {"uc", [](Reader& reader, const RtfToken& word) { reader.Group().fallbackLength = qMax(0, word.ValueOr(1)); }},
        {"u", [](Reader& reader, const RtfToken& word) { reader.AddUnicode(word.value); }},

        {"b",
         [](Reader& reader, const RtfToken& word) {
             reader.Group().letters.setFontWeight(word.IsOn() ? QFont::Bold : QFont::Normal);
         }},
        {"i", [](Reader& reader, const RtfToken& word) { reader.Group().letters.setFontItalic(word.IsOn()); }},
        {"ul", [](Reader& reader, const RtfToken& word) { reader.Group().letters.setFontUnderline(word.IsOn()); }},
        {"ulnone", [](Reader& reader, const RtfToken&) { reader.Group().letters.setFontUnderline(false); }},
        {"fs", SetSize},
        {"plain", [](Reader& reader, const RtfToken&) { reader.Group().letters = PlainLetters(); }},

        {"pard", [](Reader& reader, const RtfToken&) { reader.Group().paragraph = {}; }},
        {"li", SetDistance<&QTextBlockFormat::setLeftMargin>},
        {"ri", SetDistance<&QTextBlockFormat::setRightMargin>},
        {"fi", SetDistance<&QTextBlockFormat::setTextIndent>},
        {"sb", SetDistance<&QTextBlockFormat::setTopMargin>},
        {"sa", SetDistance<&QTextBlockFormat::setBottomMargin>},
        {"ql", Align<Qt::AlignLeft>},
        {"qc", Align<Qt::AlignHCenter>},
        {"qr", Align<Qt::AlignRight>},
        {"outlinelevel",
         [](Reader& reader, const RtfToken& word) {
             reader.Group().paragraph.setHeadingLevel(qBound(0, word.value, 5) + 1);
         }},

        {"par", [](Reader& reader, const RtfToken&) { reader.EndParagraph(); }},
        {"line", Add<QChar::LineSeparator>},
        {"tab", Add<u'\t'>},
        {"~", Add<QChar::Nbsp>},
        {"-", Add<QChar::SoftHyphen>},
        {"_", Add<u'\u2011'>},
        {"bullet", Add<u'\u2022'>},
        {"endash", Add<u'\u2013'>},
        {"emdash", Add<u'\u2014'>},
        {"lquote", Add<u'\u2018'>},
        {"rquote", Add<u'\u2019'>},
        {"ldblquote", Add<u'\u201C'>},
        {"rdblquote", Add<u'\u201D'>},
    };
    return actions;
}

QString Reader::Read() {
    const RtfToken::Kind first = lexer_.Next().kind;
    const RtfToken second = lexer_.Next();
    if (first != RtfToken::GroupOpens || second.kind != RtfToken::Word || second.text != "rtf")
        return SupportWords::tr("This is not a text in RTF.");
    groups_.emplace_back();
    cursor_.beginEditBlock();
    const QString fault = ReadGroups();
    EndLastParagraph();
    cursor_.endEditBlock();
    return fault;
}

QString Reader::ReadGroups() {
    for (;;) {
        const RtfToken token = lexer_.Next();
        switch (token.kind) {
            case RtfToken::GroupOpens:
                if (groups_.size() == DeepestGroup)
                    return SupportWords::tr("The groups of the text are nested too deeply.");
                groups_.push_back(groups_.back());
                fallbackLeft_ = 0;
                break;
            case RtfToken::GroupCloses:
                fallbackLeft_ = 0;
                if (groups_.size() > 1)
                    groups_.pop_back();
                else
                    return lexer_.IsAtEnd() ? QString()
                                            : SupportWords::tr("The text closes more groups than it opens.");
                break;
            case RtfToken::Word:
                Obey(token);
                break;
            case RtfToken::Text:
                AddText(token.text);
                break;
            case RtfToken::End:
                return SupportWords::tr("The end of the text is missing.");
        }
    }
}

void Reader::Obey(const RtfToken& word) {
    if (fallbackLeft_ > 0 && word.text != "u" && word.text != "uc") {
        --fallbackLeft_;  // a word counts as one character of the fallback
        return;
    }
    if (const Action action = Actions().value(word.text)) action(*this, word);
}

void Reader::AddText(const QByteArray& bytes) {
    const qsizetype passedOver = qMin(fallbackLeft_, bytes.size());
    fallbackLeft_ -= passedOver;
    Insert(output::FromNumberedPage(bytes.mid(passedOver), codePage_));
}

void Reader::BeginInstruction() {
    Group().destination = Destination::Instruction;
    instruction_.clear();
}

// What a field shows; of all fields only a link is more than that.
void Reader::BeginResult() {
    static const QRegularExpression link(u"HYPERLINK\\s+\"([^\"]+)\""_s);
    const auto match = link.match(instruction_);
    if (!match.hasMatch()) return;
    QTextCharFormat& letters = Group().letters;
    letters.setAnchor(true);
    letters.setAnchorHref(match.captured(1));
    letters.setFontUnderline(true);
    letters.setForeground(QGuiApplication::palette().link());
}

void Reader::AddCharacter(char16_t character) {
    Insert(QString(QChar(character)));
}

// Codes are signed 16-bit numbers, a character beyond them comes as its two halves.
void Reader::AddUnicode(int code) {
    AddCharacter(static_cast<char16_t>(code));
    fallbackLeft_ = Group().fallbackLength;
}

void Reader::Insert(const QString& text) {
    if (Group().destination == Destination::Instruction) instruction_ += text;
    if (Group().destination != Destination::Document) return;
    QString shown;
    for (const QChar c : text)
        if (c == u'\t' || c.category() != QChar::Other_Control) shown += c;
    if (!shown.isEmpty()) cursor_.insertText(shown, Group().letters);
}

// A paragraph looks as its end demands.
void Reader::EndParagraph() {
    if (Group().destination != Destination::Document) return;
    cursor_.setBlockFormat(WithTabStop(Group().paragraph));
    cursor_.setBlockCharFormat(Group().letters);
    cursor_.insertBlock(QTextBlockFormat(), QTextCharFormat());
}

// The last "\par" only ends a paragraph, it does not begin another one.
void Reader::EndLastParagraph() {
    if (cursor_.block().length() > 1)
        cursor_.setBlockFormat(WithTabStop(Group().paragraph));
    else
        cursor_.deletePreviousChar();
}

}  // namespace

QString ReadRtf(const QByteArray& rtf, QTextDocument& document) {
    document.setUndoRedoEnabled(false);
    document.clear();
    return Reader(rtf, document).Read();
}
