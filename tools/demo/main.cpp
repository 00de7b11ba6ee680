// velton-demo [FOLDER] [--server ADDRESS]: plays a working day of the demo shop through the real screens, off-screen,
// in FOLDER (by default demo-day here, made anew), and prints the receipts and the day's figures that it leaves there.

#include <CLI/CLI.hpp>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

#include "app/Start.h"
#include "delivery/Delivery.h"
#include "demo/WorkingDay.h"
#include "output/CodePage.h"
#include "output/Folder.h"
#include "player/Offscreen.h"
#include "store/Database.h"
#include "store/StorePath.h"

using namespace Qt::StringLiterals;

namespace {

// A folder that an earlier day left, pictures and all; a shop that somebody works in has none and is not ours to
// delete. What it left on a server stays in any case.
void ClearFolder(const QString& path) {
    QDir folder(path);
    if (!folder.exists()) return;
    if (!folder.isEmpty() && !(folder.exists(store::OptionsFile) && folder.exists(u"screens"_s)))
        throw std::runtime_error("The folder " + path.toStdString() + " holds something else than an earlier day.");
    if (!folder.removeRecursively())
        throw std::runtime_error("The folder " + path.toStdString() + " can't be cleared.");
}

void SwitchOnFiscalRecords(const QString& path) {
    const auto options = store::OpenOptions(path);
    options->Execute(u"UPDATE Options SET FiskalniRacunDA = '1'"_s);
}

void Print(const QString& title, const QString& text) {
    std::printf("%s\n%s\n\n", qPrintable(title), qPrintable(text));
}

QString TextFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? output::FromCodePage(file.readAll()).remove(u'\r') : QString();
}

void Play(const QString& path, const QString& server) {
    ClearFolder(path);
    delivery::MakeProgramFolder(path, {.withDemo = true, .server = server});
    SwitchOnFiscalRecords(path);
    output::SetProgramFolder(path);
    const QString pictures = QDir(path).filePath(u"screens"_s);
    PlayWorkingDay(pictures);
    Print(u"The receipts of the day:"_s, TextFile(output::InProgramFolder(u"invoices.txt"_s)));
    Print(u"The report of the day:"_s, TextFile(output::InProgramFolder(u"Report.txt"_s)));
    std::printf("The shop lies in %s, the screenshots in %s.\n", qPrintable(QDir(path).absolutePath()),
                qPrintable(QDir(pictures).absolutePath()));
}

int Run(int argc, char* argv[]) {
    std::string folder = "demo-day";
    CLI::App app("Plays a working day of a demo shop, and prints the receipts and figures that it leaves",
                 "velton-demo");
    app.add_option("FOLDER", folder, "Takes the shop; one that an earlier day left is made anew")
        ->capture_default_str();
    std::string server;
    app.add_option("--server", server, "The address of the server that takes the main store; none may lie there yet");
    CLI11_PARSE(app, argc, argv);

    drivers::HushPlatform();
    const QTemporaryDir screen;
    drivers::UseTillScreen(screen.path());
    QApplication application(argc, argv);
    PrepareApplication();
    Play(QString::fromLocal8Bit(folder), QString::fromLocal8Bit(server));
    return 0;
}

}  // namespace

int main(int argc, char* argv[]) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "velton-demo: %s\n", error.what());
        return 1;
    }
}
