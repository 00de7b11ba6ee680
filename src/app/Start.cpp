#include "app/Start.h"

#include <sys/stat.h>

#include <csignal>

#include "app/Screens.h"
#include "core/PrinterWait.h"
#include "core/frmLogin.h"
#include "core/mdiORVA.h"
#include "forms/Theme.h"
#include "sales/frmORVAtouch.h"

using namespace Qt::StringLiterals;

namespace {

// The main window opens with its child.
void ShowSalesScreen() {
    mdiORVA& main = mdiORVA::Window();
    TieEntries(main);
    main.ShowChild(forms::Open<frmORVAtouch>());
    main.showMaximized();
    main.raise();
    main.activateWindow();
}

}  // namespace

void PrepareApplication(QApplication& application) {
    ::umask(077);  // a shop's files belong to its user alone
    // A printer that hangs up and a file that may not grow any further are errors to report, not an end.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    QApplication::setApplicationName(u"VELTON"_s);
    QApplication::setApplicationVersion(QStringLiteral(VELTON_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    forms::InstallTheme(application);
}

bool StartProgram() {
    ShowWaitsOfOutput();
    forms::Run([] { forms::Open<frmLogin>(ShowSalesScreen)->Show(); }, u"VELTON"_s);
    return !forms::ProgramIsEnding() && !forms::LoadedForms().isEmpty();
}
