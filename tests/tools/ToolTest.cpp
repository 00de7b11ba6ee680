#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>

#include "delivery/Delivery.h"
#include "store/StorePath.h"
#include "support/CaseText.h"
#include "support/Engines.h"
#include "support/Files.h"
#include "support/Server.h"
#include "support/TestFolder.h"
#include "support/ValueOf.h"
#include "upkeep/ValueText.h"
#include "upkeep/goods/AmountText.h"
#include "upkeep/goods/PriceChange.h"

using namespace Qt::StringLiterals;

namespace {

// A case is a talk with a shell, in a folder that holds `shop`, a program folder with delivered stores: "$ " is typed,
// and "> " behind it; the lines below are the answer: the output, then the error output behind "! ". The exit code is 1
// where an error's number is told and 0 elsewhere, or the last line says "exit N". In an answer "|" is a tab, "~" an
// empty line, "..." any text, and as a line any lines. What stands before the first case is defined in all of them.
// $SERVER is the address of a shop on a server that nobody has used.
struct Talk {
    QString name, file, shell;
    std::vector<std::pair<int, QString>> lines;
};

void PrintTo(const Talk& talk, std::ostream* out) {
    *out << talk.name.toStdString();
}

std::vector<Talk> Talks() {
    std::vector<Talk> talks;
    for (const auto& topic : {u"backup"_s, u"backup-register"_s, u"check"_s, u"delivery"_s, u"files"_s, u"goods"_s,
                              u"insert"_s, u"load"_s, u"move"_s, u"new"_s, u"report"_s, u"sql"_s}) {
        const auto file = QStringLiteral(TEST_DATA "/tools/%1.txt").arg(topic);
        QString shell;
        bool isInCase = false;
        for (int number = 1; const QString& line : QString::fromUtf8(drivers::ReadFile(file)).split(u'\n')) {
            isInCase = isInCase || line.startsWith(u"== ");
            if (line.startsWith(u"== "))
                talks.push_back({line.mid(3), file, shell, {}});
            else if (!isInCase)
                shell += line + u'\n';
            else if (!line.isEmpty() && !line.startsWith(u"# "))
                talks.back().lines.emplace_back(number, line);
            ++number;
        }
    }
    return talks;
}

const auto Shell =
    uR"(
tool() { LC_ALL=${locale:-en_US.UTF-8} "$TOOL" "$@"; }
sql() { tool sql shop "$@"; }
insert() { tool insert shop "$@"; }
check() { tool check shop; }
report() { tool report shop "$@"; }
bytes() { printf "$2" | tr '|' '\t' > rows.tsv; tool load shop "$1" rows.tsv; }
load() { bytes "$1" "$2\n"; }
raw() { "$STRANGER" shop "$1" "${2-$1}"; }
beside() { cp "$TOOL" velton-store; echo 'the program' > velton; }
)"_s;

QStringList LinesOf(const QByteArray& output, const QString& before) {
    QStringList lines = QString::fromUtf8(output).replace(u'\t', u'|').split(u'\n');
    if (lines.last().isEmpty()) lines.removeLast();
    for (QString& line : lines) line = line.isEmpty() ? u"~"_s : before + line;
    return lines;
}

class ToolTest : public testing::TestWithParam<Talk> {
protected:
    ToolTest() { delivery::MakeProgramFolder(folder_.filePath(u"shop"_s), {.server = drivers::ServerForTest()}); }

    QString Answer(const QString& command) const {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        environment.insert(u"TOOL"_s, QStringLiteral(PROGRAMS "/velton-store"));
        environment.insert(u"STRANGER"_s, QCoreApplication::applicationFilePath());
        environment.insert(u"SERVER"_s, server_);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder_.path());
        process.start(u"bash"_s, {u"-c"_s, Shell + GetParam().shell + command}, QIODevice::ReadOnly);
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) return u"a crash\n"_s;
        const QStringList errors = LinesOf(process.readAllStandardError(), u"! "_s);
        QStringList answer = LinesOf(process.readAllStandardOutput(), {}) + errors;
        const bool fails = !errors.filter(QRegularExpression(u"^! [0-9]+: "_s)).isEmpty();
        if (process.exitCode() != (fails ? 1 : 0)) answer += u"exit %1"_s.arg(process.exitCode());
        answer += QString();
        return answer.join(u'\n');
    }

    void Expect(int line, const QString& command, const QStringList& expected) const {
        QString pattern;
        for (const QString& one : expected)
            pattern +=
                one == u"..." ? u"(.*\n)*"_s : QRegularExpression::escape(one).replace(u"\\.\\.\\."_s, u".*"_s) + u'\n';
        const QString answer = Answer(command);
        const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern));
        EXPECT_TRUE(whole.match(answer).hasMatch())
            << GetParam().file.toStdString() << ':' << line << ": " << command.toStdString() << "\nanswers\n"
            << answer.toStdString() << "and not\n"
            << expected.join(u'\n').toStdString();
    }

    const QTemporaryDir folder_{FolderTemplate()};
    const QString server_ = GetParam().file.endsWith(u"move.txt") ? drivers::Server::Running().NewShop() : QString();
};

}  // namespace

TEST_P(ToolTest, AnswersAsItsCaseSays) {
    QString command;
    QStringList expected;
    int begin = 0;
    for (const auto& [number, line] : GetParam().lines) {
        if (line.startsWith(u"$ ")) {
            if (begin > 0) Expect(begin, command, expected);
            begin = number;
            command = line.mid(2);
            expected.clear();
        } else if (line.startsWith(u"> ") && expected.isEmpty()) {
            command += u'\n' + line.mid(2);
        } else {
            expected += line;
        }
    }
    ASSERT_GT(begin, 0);
    Expect(begin, command, expected);
}

INSTANTIATE_TEST_SUITE_P(Tool, ToolTest, testing::ValuesIn(Talks()),
                         [](const auto& info) { return info.param.name.toStdString(); });

TEST(StoreFiles, AStoreThatSomebodyHoldsForHimselfIsToldSo) {
    const QTemporaryDir folder(FolderTemplate());
    delivery::MakeProgramFolder(folder.path(), {.server = drivers::ServerForTest()});
    const auto database = store::Database::Open(store::MainPlace(folder.path()), store::MainSchema());
    const store::Database::Batch held(*database);
    QProcess tool;
    tool.start(QStringLiteral(PROGRAMS "/velton-store"), {u"insert"_s, folder.path(), u"Unit"_s, u"Abr=x"_s});
    EXPECT_TRUE(tool.waitForFinished());
    EXPECT_TRUE(tool.readAllStandardError().startsWith("3356: "));
}

class CellTest : public testing::TestWithParam<drivers::CaseText> {};

TEST_P(CellTest, GivesWhatItsRowsSay) {
    const QStringList types{u"Null"_s,     u"Text"_s,   u"Whole"_s, u"Money"_s, u"Decimal"_s,
                            u"Quantity"_s, u"Double"_s, u"Date"_s,  u"Time"_s,  u"YesNo"_s};
    const auto cell = [&types](const QStringList& at) {
        const values::Value value = upkeep::ReadValue(at[1].toUtf8(), static_cast<store::Type>(types.indexOf(at[0])));
        EXPECT_EQ(upkeep::WriteValue(value), at[1].toUtf8());
        return drivers::Told(value);
    };
    for (const drivers::Step& step : GetParam().steps.inner) CheckRows(step, {{u"Cell"_s, cell}});
}

INSTANTIATE_TEST_SUITE_P(Tool, CellTest, testing::ValuesIn(drivers::ReadCases(u"tools"_s, {u"cells"_s})),
                         [](const auto& info) { return info.param.name.toStdString(); });

class AmountTest : public testing::TestWithParam<drivers::CaseText> {};

TEST_P(AmountTest, GivesWhatItsRowsSay) {
    const auto sign = [](const QString& text) { return text.isEmpty() ? QChar() : text[0]; };
    const auto amount = [&](const QStringList& at) {
        const auto read = upkeep::ReadAmount(at[0], sign(at[1]));
        if (const auto* fault = std::get_if<upkeep::AmountFault>(&read))
            return u"fault %1"_s.arg(static_cast<int>(*fault));
        return upkeep::ShownAmount(std::get<values::Money>(read));
    };
    const auto votes = [](const QStringList& at) {
        upkeep::DecimalVotes counted;
        for (const QString& text : at[0].split(u' ')) counted.Count(text);
        return counted.Winner().isNull() ? u"unclear"_s : QString(counted.Winner());
    };
    const auto price = [](const QStringList& at) {
        const auto money = [](const QString& text) {
            return upkeep::ReadValue(text.toUtf8(), store::Type::Money).ToMoney();
        };
        return upkeep::ShownAmount(
            upkeep::ChangedPrice(money(at[0]), money(at[1]), static_cast<upkeep::PriceEnding>(at[2].toInt())));
    };
    for (const drivers::Step& step : GetParam().steps.inner)
        CheckRows(step, {{u"Amount"_s, amount}, {u"Votes"_s, votes}, {u"Price"_s, price}});
}

INSTANTIATE_TEST_SUITE_P(Tool, AmountTest, testing::ValuesIn(drivers::ReadCases(u"tools"_s, {u"amounts"_s})),
                         [](const auto& info) { return info.param.name.toStdString(); });

TEST(ValueText, TextsThatNoFileOfCasesHoldsAreKeptOrRefused) {
    const QString zero = QString(u'x') + QChar(u'\0') + u'y';
    EXPECT_EQ(upkeep::WriteValue(zero), "x\\0y");
    EXPECT_EQ(upkeep::WriteValue(0.1 + 0.2), "0.3");
    EXPECT_EQ(upkeep::ReadValue("x\\0y", store::Type::Text), values::Value(zero));
    EXPECT_EQ(upkeep::ReadValue("\xEF\xBB\xBFmark", store::Type::Text), values::Value(u"\uFEFFmark"_s));
    for (const char* bytes : {"\xFF", "\xC4", "\xED\xA0\x80"})
        EXPECT_THROW(upkeep::ReadValue(bytes, store::Type::Text), store::StoreError) << bytes;
}

// With "FOLDER TEXT TEXT" it is the stranger who works on a store behind its back.
int main(int argc, char** argv) {
    if (argc == 4) {
        drivers::DoBehind(QString::fromUtf8(argv[1]), QString::fromUtf8(argv[2]), QString::fromUtf8(argv[3]));
        return 0;
    }
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
