#include <QApplication>

#include "app/BackupProgram.h"
#include "app/Start.h"
#include "core/BackupStart.h"
#include "forms/Program.h"

int main(int argc, char* argv[]) {
    if (IsBackupCall(argc, argv)) return MakeBackupByItself(argc, argv);
    QApplication application(argc, argv);
    PrepareApplication();
    UseBackupProgram(StartBackupProgram);
    if (StartProgram()) QApplication::exec();
    return forms::ProgramExitCode();
}
