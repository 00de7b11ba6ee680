#include "tools/StoreTool.h"

#include <QFile>
#include <QProcess>
#include <ostream>

#include "delivery/Delivery.h"

using namespace Qt::StringLiterals;

namespace {

Answer Run(const QString& program, const QStringList& arguments, const QString& locale) {
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, locale);
    environment.insert(u"TOOL"_s, ToolPath());
    process.setProcessEnvironment(environment);
    process.start(program, arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const Answer& answer) {
    return stream << "exit code " << answer.exitCode << "\nout: " << answer.out.toStdString()
                  << "\nerr: " << answer.err.toStdString();
}

QString ToolPath() {
    return QStringLiteral(PROGRAMS "/velton-store");
}

Answer Tool(const QStringList& arguments, const QString& locale) {
    return Run(ToolPath(), arguments, locale);
}

Answer Shell(const QString& line, const QStringList& arguments) {
    return Run(u"bash"_s, QStringList{u"-c"_s, line, u"shell"_s} + arguments, u"C.UTF-8"_s);
}

QByteArray ReadFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "(cannot be read)"_ba;
}

void WriteFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

void ShopTest::SetUp() {
    delivery::MakeProgramFolder(folder_, false);
}

Answer ShopTest::Load(const QString& table, const QByteArray& lines) const {
    const QString file = Path(u"rows.tsv"_s);
    WriteFile(file, lines);
    return Tool({u"load"_s, folder_, table, file});
}
