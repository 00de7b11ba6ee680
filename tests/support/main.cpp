#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include "forms/Theme.h"
#include "support/Answers.h"

using namespace Qt::StringLiterals;

namespace {

// A till's screen instead of the small square one that the off-screen platform has by itself.
constexpr auto screen = R"({"screens": [{"name": "till", "x": 0, "y": 0, "width": 1366, "height": 768,
    "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

void UseOffscreenPlatform(const QTemporaryDir& folder) {
    const QString path = folder.filePath(u"screen.json"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(screen) < 0) return;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(path));
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir folder;
    if (qEnvironmentVariable("QT_QPA_PLATFORM", u"offscreen"_s) == u"offscreen") UseOffscreenPlatform(folder);
    QLoggingCategory::setFilterRules(u"qt.qpa.*=false"_s);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"VELTON"_s);
    QLocale::setDefault(QLocale(u"en_US"_s));
    forms::InstallTheme(application);
    drivers::WatchModalWindows();
    return RUN_ALL_TESTS();
}
