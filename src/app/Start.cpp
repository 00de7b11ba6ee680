#include "app/Start.h"

#include <sys/stat.h>

#include <csignal>

#include "app/Screens.h"
#include "core/BackupStart.h"
#include "core/Installation.h"
#include "core/KeptErrors.h"
#include "core/PrinterWait.h"
#include "core/Settings.h"
#include "core/frmLogin.h"
#include "core/mdiORVA.h"
#include "forms/Keypad.h"
#include "forms/MsgBox.h"
#include "forms/Sound.h"
#include "forms/Theme.h"
#include "sales/frmORVAtouch.h"

using namespace Qt::StringLiterals;

namespace {

// What a file says that can't be used is told, and the till goes on without it.
void TakeInstallation() {
    QStringList refused;
    try {
        refused = ReadInstallation();
    } catch (const values::Error& error) {
        refused = {error.Description()};
    }
    forms::SetSound(TheInstallation.sound);
    forms::UseContrast(TheInstallation.contrast);
    if (!refused.isEmpty()) forms::Inform(refused.join(u'\n'), u"VELTON"_s);
}

// The main window opens with its child.
void ShowSalesScreen() {
    mdiORVA& main = mdiORVA::Window();
    TieEntries(main);
    main.ShowChild(forms::Open<frmORVAtouch>());
    // Where no window manager gives it the screen, it has that of itself.
    main.setGeometry(main.screen()->availableGeometry());
    main.showMaximized();
    main.raise();
    main.activateWindow();
}

}  // namespace

void PrepareApplication() {
    ::umask(077);  // a shop's files belong to its user alone
    // A printer that hangs up and a file that may not grow any further are errors to report, not an end.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    QApplication::setApplicationName(u"VELTON"_s);
    QApplication::setApplicationVersion(QStringLiteral(VELTON_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    forms::InstallTheme();
}

bool StartProgram() {
    ShowWaitsOfOutput();
    KeepErrors(u"velton"_s);
    forms::UseKeypad([] { return TheSettings.POSMonitor == u"2"; });
    forms::Run(
        [] {
            TakeInstallation();
            forms::Open<frmLogin>(ShowSalesScreen, TellOfBackups)->Show();
            StartBackupOfTheDay();
        },
        u"VELTON"_s);
    return !forms::ProgramIsEnding() && !forms::LoadedForms().isEmpty();
}
