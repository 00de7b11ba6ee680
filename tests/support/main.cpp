#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include "forms/Theme.h"
#include "player/Offscreen.h"
#include "support/Answers.h"

using namespace Qt::StringLiterals;

#ifdef __SANITIZE_ADDRESS__
// Qt forgets sixteen bytes of each view that scrolls under a finger.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:QScroller::grabGesture\n";
}
#endif

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
