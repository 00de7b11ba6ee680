#include <QApplication>
#include <cstring>

#include "app/Backups.h"
#include "app/Start.h"
#include "core/BackupBeside.h"
#include "forms/Program.h"

int main(int argc, char* argv[]) {
    if (argc == 2 && std::strcmp(argv[1], BackupSwitch) == 0) {
        const QCoreApplication application(argc, argv);
        return MakeBackup();
    }
    QApplication application(argc, argv);
    PrepareApplication();
    if (StartProgram()) QApplication::exec();
    return forms::ProgramExitCode();
}
