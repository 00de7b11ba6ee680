#include <QApplication>

#include "app/Start.h"
#include "forms/Program.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    PrepareApplication();
    if (StartProgram()) QApplication::exec();
    return forms::ProgramExitCode();
}
