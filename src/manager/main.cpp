// velton-manager [FOLDER]: the owner's program on the folder of a register.

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QDir>

#include "forms/Program.h"
#include "manager/Start.h"

using namespace Qt::StringLiterals;

namespace {

QString UsualFolder() {
    const QString named = qEnvironmentVariable("VELTON_FOLDER");
    return named.isEmpty() ? QDir::home().filePath(u"VELTON"_s) : named;
}

}  // namespace

int main(int argc, char* argv[]) {
    CLI::App app("The owner's program of VELTON: set-up, goods, backups, overview", "velton-manager");
    std::string folder;
    app.add_option("FOLDER", folder, "The register's folder; VELTON_FOLDER or ~/VELTON when it is not said");
    CLI11_PARSE(app, argc, argv);
    QApplication application(argc, argv);
    manager::PrepareManager();
    const QString chosen = folder.empty() ? UsualFolder() : QString::fromLocal8Bit(folder);
    if (manager::StartManager(QDir(chosen).absolutePath())) QApplication::exec();
    return forms::ProgramExitCode();
}
