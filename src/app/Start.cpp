#include "app/Start.h"

#include <csignal>

#include "app/Screens.h"
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
    std::signal(SIGPIPE, SIG_IGN);  // a printer that hangs up is an error to report, not an end
    QApplication::setApplicationName(u"VELTON"_s);
    QApplication::setApplicationVersion(QStringLiteral(VELTON_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    forms::InstallTheme(application);
}

bool StartProgram() {
    forms::Run([] { forms::Open<frmLogin>(ShowSalesScreen)->Show(); }, u"VELTON"_s);
    return !forms::ProgramIsEnding() && !forms::LoadedForms().isEmpty();
}
