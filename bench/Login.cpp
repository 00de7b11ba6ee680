// bench-login FOLDER: the program as it starts, until its login is painted.

#include <QApplication>

#include "app/Start.h"
#include "bench/FirstPaint.h"
#include "forms/Program.h"
#include "output/Folder.h"

using namespace Qt::StringLiterals;

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    if (argc != 2) return 2;
    output::SetProgramFolder(QString::fromLocal8Bit(argv[1]));
    bench::QuitWhenPainted(u"frmLogin"_s);
    PrepareApplication();
    if (StartProgram()) QApplication::exec();
    return forms::ProgramExitCode();
}
