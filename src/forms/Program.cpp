#include "forms/Program.h"

#include <QCoreApplication>
#include <QTimer>

#include "forms/MsgBox.h"
#include "values/Error.h"

namespace forms {

namespace {

bool ending = false;
int endCode = 0;
std::function<void(const std::exception&)> noteError;

void StopAllLoops(int exitCode) {
    if (!ending) {
        ending = true;
        endCode = exitCode;
    }
    QCoreApplication::exit(endCode);
    // The main loop may not have begun yet, as while the first form loads: it then leaves at its first turn.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [] {
            if (ending) QCoreApplication::exit(endCode);
        },
        Qt::QueuedConnection);
}

void Report(const std::exception& error, Icon icon, const QString& title) {
    if (noteError) noteError(error);
    try {
        Tell(ErrorText(error), icon, title);
    } catch (const ProgramEnds&) {
        // The box itself was cut short: there is nothing left to tell.
    }
}

void ReportAndPerhapsEnd(const std::exception& error, const QString& title, bool ends) {
    Report(error, ends ? Icon::Critical : Icon::Information, title);
    if (ends) StopAllLoops(1);
}

}  // namespace

void EndProgram(int exitCode) {
    StopAllLoops(exitCode);
    throw ProgramEnds{};
}

bool ProgramIsEnding() {
    return ending;
}

int ProgramExitCode() {
    return endCode;
}

void ResetProgramEnd() {
    if (!ending) return;
    ending = false;
    endCode = 0;
    // exit() lets no further loop start until a main loop has run once.
    QTimer::singleShot(0, QCoreApplication::instance(), [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
}

void Run(const std::function<void()>& handler, const QString& title, bool fatal) {
    RunTitled(
        handler, [&] { return title; }, fatal);
}

void RunTitled(const std::function<void()>& handler, const std::function<QString()>& title, bool fatal) {
    if (ending) return;
    try {
        handler();
    } catch (const ProgramEnds&) {
        // EndProgram has already stopped the loops.
    } catch (const values::Error& error) {
        ReportAndPerhapsEnd(error, title(), fatal || error.EndsProgram());
    } catch (const std::exception& error) {
        ReportAndPerhapsEnd(error, title(), fatal);
    }
}

void OnUntrappedError(std::function<void(const std::exception&)> note) {
    noteError = std::move(note);
}

QString ErrorText(const std::exception& error) {
    const auto* known = dynamic_cast<const values::Error*>(&error);
    if (!known) return QString::fromUtf8(error.what());
    return QString::number(known->Number()) + known->Description();
}

}  // namespace forms
