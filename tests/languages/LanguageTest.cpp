#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include "output/CodePage.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;

namespace {

// A message of a language's file.
struct Message {
    QString context;
    QString source;
    QString remark;       // for translators
    QStringList texts;    // one, or a form for each kind of number
    bool isWhole = true;  // finished, and still in the sources

    std::string Name() const { return (context + u": "_s + source).toStdString(); }
};

std::vector<Message> MessagesOf(const QString& language) {
    QFile file(QStringLiteral(SOURCE_ROOT "/translations/velton_%1.ts").arg(language));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    std::vector<Message> messages;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) continue;
        const auto name = xml.name();
        if (name == u"name") context = xml.readElementText();
        if (name == u"message") messages.push_back({.context = context, .source = {}, .remark = {}, .texts = {}});
        if (name == u"source") messages.back().source = xml.readElementText();
        if (name == u"extracomment") messages.back().remark = xml.readElementText();
        if (name == u"numerusform") messages.back().texts << xml.readElementText();
        if (name != u"translation") continue;
        messages.back().isWhole = !xml.attributes().hasAttribute("type"_L1);
        while (xml.readNext() != QXmlStreamReader::EndElement || xml.name() != u"translation") {
            if (xml.isStartElement()) messages.back().texts << xml.readElementText();
            if (xml.isCharacters() && !xml.isWhitespace()) messages.back().texts << xml.text().toString();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

// What must stand in a text as in its source: places for values, and the key that presses a button.
QStringList KeptParts(const QString& text) {
    static const QRegularExpression parts(u"%\\d+|%n|^(?:F\\d+|Esc|ESC)(?= ?-)"_s);
    QStringList kept;
    for (auto all = parts.globalMatch(text); all.hasNext();) kept << all.next().captured().toLower();
    kept.removeDuplicates();
    kept.sort();
    return kept;
}

class LanguageTest : public testing::TestWithParam<QString> {};

TEST_P(LanguageTest, IsWhole) {
    const auto messages = MessagesOf(GetParam());
    EXPECT_GT(messages.size(), 1000U);
    for (const Message& message : messages) {
        EXPECT_TRUE(message.isWhole) << message.Name();
        for (const QString& text : message.texts) {
            const QStringList missing = [&] {
                QStringList kept = KeptParts(message.source);
                for (const QString& part : KeptParts(text)) kept.removeOne(part);
                // One thing may be told without its number.
                if (message.texts.size() > 1) kept.removeOne(u"%n"_s);
                return kept;
            }();
            EXPECT_TRUE(missing.isEmpty()) << message.Name() << " lacks " << missing.join(u' ').toStdString();
        }
        EXPECT_FALSE(message.texts.join(QString()).isEmpty()) << message.Name();
    }
}

// "at most 12 columns without %1, the date" is a limit, "40 columns: ..." the width of a head.
TEST_P(LanguageTest, FitsThePaper) {
    static const QRegularExpression remark(u"^(at most )?(\\d+) columns"_s), place(u"%\\d"_s);
    int looked = 0;
    for (const Message& message : MessagesOf(GetParam())) {
        const auto found = remark.match(message.remark);
        if (message.context != u"Paper" || !found.hasMatch()) continue;
        ++looked;
        const int columns = output::Columns(QString(message.texts.value(0)).remove(place));
        const int width = found.captured(2).toInt();
        if (found.captured(1).isEmpty())
            EXPECT_EQ(columns, width) << message.Name();
        else
            EXPECT_LE(columns, width) << message.Name();
    }
    EXPECT_GT(looked, 50);
}

QStringList Codes() {
    QStringList codes;
    for (const values::Language& language : values::Languages()) codes << language.code;
    return codes;
}

INSTANTIATE_TEST_SUITE_P(Language, LanguageTest, testing::ValuesIn(Codes()),
                         [](const auto& test) { return test.param.toStdString(); });

TEST(LanguagesTest, ScreensAndPaperEachHaveTheirOwn) {
    using values::Shown;
    int none = 0;
    const QCoreApplication application(none, nullptr);
    EXPECT_EQ(values::LanguageFor({u"fr-FR"_s, u"sr-Latn-RS"_s, u"de-AT"_s}), u"sr_Latn"_s);
    EXPECT_EQ(values::LanguageFor({u"C"_s}), QString());
    const char total[] = "TOTAL: ";
    const QString shown = QCoreApplication::translate("mdiORVA", "&Invoices");
    const QString printed = values::Paper::tr(total);
    EXPECT_EQ(shown, u"&Invoices"_s);
    values::UseLanguage(Shown::OnScreens, u"DE"_s);
    EXPECT_NE(QCoreApplication::translate("mdiORVA", "&Invoices"), shown);
    EXPECT_EQ(values::Paper::tr(total), printed);
    values::UseLanguage(Shown::OnPaper, u"sr_Latn"_s);
    EXPECT_NE(values::Paper::tr(total), printed);
    values::UseLanguage(Shown::OnScreens, u"xx"_s);
    EXPECT_EQ(QCoreApplication::translate("mdiORVA", "&Invoices"), shown);
    values::UseLanguage(Shown::OnPaper, {});
    EXPECT_EQ(values::Paper::tr(total), printed);
}

}  // namespace
