#include "support/CaseText.h"

#include <gtest/gtest.h>

#include <QMap>
#include <algorithm>

#include "support/Files.h"
#include "support/UnderLocale.h"
#include "values/Error.h"

using namespace Qt::StringLiterals;

namespace drivers {

namespace {

constexpr int Indent = 4;

// What is no escape stands as it is: "\\img" is a folder.
QString Unescaped(const QString& text) {
    static const QMap<QChar, QString> escapes = {
        {u'n', u"\n"_s}, {u'r', u"\r"_s}, {u's', u" "_s}, {u'0', {}}, {u'\\', u"\\"_s}};
    QString plain;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text.sliced(at).startsWith(u"\\u") && at + 6 <= text.size()) {
            plain += QChar(text.sliced(at + 2, 4).toUShort(nullptr, 16));
            at += 5;
            continue;
        }
        const bool isEscape = text[at] == u'\\' && at + 1 < text.size() && escapes.contains(text[at + 1]);
        plain += isEscape ? escapes[text[++at]] : QString(text[at]);
    }
    return plain;
}

class CaseReader {
public:
    explicit CaseReader(const QString& path) : path_(path) { lines_ = QString::fromUtf8(ReadFile(path)).split(u'\n'); }

    std::vector<CaseText> Cases() {
        const std::vector<Step> before = Block(at_, 0);
        std::vector<CaseText> cases;
        while (at_ < lines_.size()) {
            CaseText text{.name = lines_[at_++].mid(3), .steps = {}};
            text.steps.inner = before;
            std::ranges::move(Block(at_, 0), std::back_inserter(text.steps.inner));
            cases.push_back(std::move(text));
        }
        return cases;
    }

private:
    static bool IsRemark(const QString& line) { return line.trimmed().isEmpty() || line.trimmed().startsWith(u'#'); }

    void Let(const QString& line) { texts_[u'$' + line.section(u' ', 1, 1)] = Put(line.section(u" = "_s, 1)); }

    QString Put(QString text) const {
        // The longest name first, or $Row would be found in $Rows.
        QStringList names = texts_.keys();
        std::ranges::sort(names, std::greater{}, &QString::size);
        for (const QString& name : names) text.replace(name, texts_[name]);
        return text;
    }

    // The lines from `next` on that are indented at least as deep.
    std::vector<Step> Block(qsizetype& next, int depth) {
        std::vector<Step> steps;
        for (; next < lines_.size(); ++next) {
            const QString& line = lines_[next];
            if (IsRemark(line)) continue;
            const qsizetype blanks = std::ranges::find_if(line, [](QChar c) { return c != u' '; }) - line.begin();
            if (blanks < depth || line.startsWith(u"== ")) break;
            if (blanks > depth) {
                ADD_FAILURE() << path_.toStdString() << ':' << next + 1 << ": indented under nothing";
                break;
            }
            if (line.mid(depth).startsWith(u"let "))
                Let(line.mid(depth));
            else
                Add(steps, next, depth);
        }
        return steps;
    }

    void Add(std::vector<Step>& steps, qsizetype& next, int depth) {
        const qsizetype head = next;
        const QString text = Put(lines_[head].mid(depth));
        if (text.startsWith(u"each ")) return Repeat(steps, text.mid(5).split(u" | "_s), next, depth);
        Step step = StepOf(text, head);
        ++next;
        step.inner = Block(next, depth + Indent);
        --next;
        steps.push_back(std::move(step));
    }

    void Repeat(std::vector<Step>& steps, const QStringList& each, qsizetype& next, int depth) {
        const qsizetype head = next + 1;
        const QString outer = texts_.value(u"$_"_s);
        for (const QString& one : each) {
            texts_[u"$_"_s] = one;
            next = head;
            std::ranges::move(Block(next, depth + Indent), std::back_inserter(steps));
        }
        texts_[u"$_"_s] = outer;
        --next;
    }

    Step StepOf(QString text, qsizetype at) const {
        text = Unescaped(text);
        const qsizetype arrow = text.lastIndexOf(u" => "_s);
        const QString form = arrow < 0 ? QString() : text.mid(arrow + 4);
        if (arrow >= 0) text.truncate(arrow);
        return {path_.toStdString(), static_cast<int>(at) + 1, text, form, {}};
    }

    QString path_;
    QStringList lines_;
    qsizetype at_ = 0;
    QMap<QString, QString> texts_;
};

}  // namespace

void PrintTo(const CaseText& text, std::ostream* out) {
    *out << text.name.toStdString();
}

std::vector<CaseText> ReadCases(const QString& folder, const QStringList& topics) {
    std::vector<CaseText> cases;
    for (const QString& topic : topics)
        std::ranges::move(CaseReader(QStringLiteral(TEST_DATA "/%1/%2.txt").arg(folder, topic)).Cases(),
                          std::back_inserter(cases));
    return cases;
}

namespace {

std::string Outcome(const Function& function, const QStringList& arguments) {
    try {
        return function(arguments).toStdString();
    } catch (const values::Error& error) {
        return "error " + std::to_string(error.Number());
    }
}

}  // namespace

void CheckRows(const Step& step, const QMap<QString, Function>& functions) {
    const QStringList locales = step.text.section(u" in "_s, 1).split(u' ');
    EXPECT_FALSE(step.inner.empty()) << step.file << ':' << step.line;
    for (const QString& name : step.text.section(u" in "_s, 0, 0).split(u" & "_s)) {
        if (!functions.contains(name))
            ADD_FAILURE() << step.file << ':' << step.line << ": what is " << name.toStdString();
        for (const QString& locale : locales) {
            const UnderLocale under(locale.isEmpty() ? QLocale::c() : QLocale(locale));
            for (const Step& row : step.inner) {
                QStringList cells = row.text.split(u" | "_s);
                const std::string expected = cells.takeLast().toStdString();
                EXPECT_EQ(Outcome(functions[name], cells), expected)
                    << row.file << ':' << row.line << ": " << name.toStdString() << " in " << locale.toStdString();
            }
        }
    }
}

}  // namespace drivers
