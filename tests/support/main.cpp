#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include "forms/Theme.h"
#include "player/Offscreen.h"
#include "support/Answers.h"

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir folder;
    drivers::UseTillScreen(folder.path());
    QLoggingCategory::setFilterRules(u"qt.qpa.*=false"_s);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"VELTON"_s);
    QLocale::setDefault(QLocale(u"en_US"_s));
    forms::InstallTheme(application);
    drivers::WatchModalWindows();
    return RUN_ALL_TESTS();
}
