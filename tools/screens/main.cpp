// velton-screens FOLDER: plays some days of the demo shop through the real screens, off-screen, and leaves a picture of
// every screen in FOLDER. Fails, with names, when a screen is on no picture.

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>

#include "app/Start.h"
#include "delivery/Delivery.h"
#include "output/Folder.h"
#include "player/Offscreen.h"
#include "screens/Album.h"
#include "screens/Manager.h"
#include "screens/Tour.h"
#include "store/Database.h"
#include "store/StorePath.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace {

struct Arguments {
    std::string folder;
    std::pair<int, int> size{1366, 768};
    std::string scale;
    std::string language;
};

// As a shop sets its register that has a fiscal printer and writes customers on invoices.
void MakeShop(const QString& path, const QString& language) {
    delivery::MakeProgramFolder(path, {.withDemo = true});
    if (!language.isEmpty())
        values::SaveFile(path + u"/velton.ini"_s, u"[language]\nscreens=%1\npaper=%1\n"_s.arg(language).toUtf8());
    const auto options = store::OpenOptions(path);
    options->Execute(u"UPDATE Options SET FiskalniRacunDA = '1', Kupac = True"_s);
    output::SetProgramFolder(path);
}

int TakePictures(const QString& folder, const QString& shop, const QString& language) {
    MakeShop(shop, language);
    screens::Album album(folder);
    const auto camera = [&](QWidget& window, const QString& name) { album.Add(window, name); };
    screens::TakeTour(camera);
    screens::LookAtManager(shop, camera);
    const QStringList missing = album.MissingScreens();
    for (const QString& screen : missing) std::fprintf(stderr, "No picture shows %s.\n", qPrintable(screen));
    for (const QString& fault : album.Faults()) std::fprintf(stderr, "%s.\n", qPrintable(fault));
    const bool isWell = missing.isEmpty() && album.Faults().isEmpty();
    if (isWell) std::printf("%lld pictures in %s\n", static_cast<long long>(album.Count()), qPrintable(folder));
    return isWell ? 0 : 1;
}

int Run(int argc, char* argv[]) {
    Arguments arguments;
    CLI::App app("Takes a picture of every screen of VELTON", "velton-screens");
    app.add_option("FOLDER", arguments.folder, "Takes the pictures; it is made when it is missing")->required();
    app.add_option("--size", arguments.size, "The till's screen, 1366x768 when nothing is said")
        ->delimiter('x')
        ->check(CLI::Range(480, 4096))
        ->type_name("WIDTHxHEIGHT");
    app.add_option("--scale", arguments.scale, "How many dots of the screen make a pixel, 1 when nothing is said")
        ->check(CLI::Range(1.0, 4.0))
        ->type_name("FACTOR");
    app.add_option("--language", arguments.language, "Of screens and paper; as delivered when nothing is said");
    CLI11_PARSE(app, argc, argv);
    if (!arguments.scale.empty()) qputenv("QT_SCALE_FACTOR", QByteArray::fromStdString(arguments.scale));

    drivers::HushPlatform();
    const QTemporaryDir temporary;
    drivers::UseTillScreen(temporary.path(), {arguments.size.first, arguments.size.second});
    QApplication application(argc, argv);
    PrepareApplication();
    QApplication::setCursorFlashTime(0);  // the caret always shows
    return TakePictures(QString::fromLocal8Bit(arguments.folder), temporary.filePath(u"VELTON"_s),
                        QString::fromStdString(arguments.language));
}

}  // namespace

int main(int argc, char* argv[]) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "velton-screens: %s\n", error.what());
        return 1;
    }
}
