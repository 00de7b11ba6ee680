#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <cerrno>

#include "forms/Theme.h"
#include "player/Offscreen.h"
#include "support/Answers.h"
#include "support/Disk.h"

using namespace Qt::StringLiterals;

bool drivers::diskRefuses = false;
int drivers::diskSyncs = 0;

// In the place of the system's, also for the engine of the store.
extern "C" int fdatasync(int /*file*/) {
    ++drivers::diskSyncs;
    if (drivers::diskRefuses) errno = EIO;
    return drivers::diskRefuses ? -1 : 0;
}

extern "C" int fsync(int file) {
    return fdatasync(file);
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir folder;
    drivers::UseTillScreen(folder.path());
    QLoggingCategory::setFilterRules(u"qt.qpa.*=false"_s);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"VELTON"_s);
    QLocale::setDefault(QLocale(u"en_US"_s));
    forms::InstallTheme();
    drivers::WatchModalWindows();
    return RUN_ALL_TESTS();
}
