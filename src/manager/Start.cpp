#include "manager/Start.h"

#include <sys/stat.h>

#include <QApplication>
#include <csignal>

#include "core/AccessLevels.h"
#include "core/Installation.h"
#include "core/KeptErrors.h"
#include "core/PrinterWait.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "forms/Theme.h"
#include "manager/ManagerLogin.h"
#include "manager/ManagerWindow.h"
#include "output/Folder.h"
#include "store/StoreError.h"
#include "upkeep/Restore.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto Title = u"VELTON Manager"_s;

// The password that every shop is delivered with.
const auto DeliveredUserQuery =
    u"SELECT UserID FROM Users WHERE AccLevel = '%1' AND Password = '1234'"_s.arg(OwnersLevel);
const auto OwnersQuery = u"SELECT UserID FROM Users WHERE AccLevel = '%1'"_s.arg(OwnersLevel);
const auto InvoicesQuery = u"SELECT InvoiceID FROM Invoices"_s;

bool IsAsDelivered() {
    return MainStore().OpenRecordset(DeliveredUserQuery).RecordCount() == 1 &&
           MainStore().OpenRecordset(OwnersQuery).RecordCount() == 1 &&
           MainStore().OpenRecordset(InvoicesQuery).AtEOF();
}

// A shop that has chosen none sees its owner's program in the language of the system.
void UseLanguages() {
    const QString& chosen = TheInstallation.screens;
    values::UseLanguage(values::Shown::OnScreens,
                        chosen.isEmpty() ? values::LanguageFor(QLocale::system().uiLanguages()) : chosen);
    values::UseLanguage(values::Shown::OnPaper, TheInstallation.paper);
}

ManagerWindow* ShowWindow(const std::vector<PageEntry>& pages = AllPages()) {
    auto* window = forms::Open<ManagerWindow>(pages);
    QObject::connect(window, &forms::Form::Unloaded, [] { forms::Run([] { forms::EndProgram(); }, Title); });
    window->Show();
    return window;
}

void OpenRegister() {
    upkeep::EndBrokenRestore(output::ProgramFolder());
    const QStringList refused = ReadInstallation();
    UseLanguages();
    forms::UseContrast(TheInstallation.contrast);
    if (!refused.isEmpty()) forms::Inform(refused.join(u'\n'), Title);
    OpenOptionsStore();
    auto options = OptionsStore().OpenRecordset(u"SELECT * FROM Options"_s);
    options.MoveFirst();
    ReadSettings(options);
    static_cast<Heading&>(TheSettings) = TheInstallation.heading;
}

void OpenMain() {
    OpenMainStore();
    ShowWaitsOfMainStore();
}

// One that has moved away can be joined where it lies now; whoever did that logs in there at the next start.
bool HasShop() {
    try {
        OpenMain();
        return true;
    } catch (const store::StoreError& error) {
        if (error.Number() != store::FileNotFound) throw;
        forms::Inform(forms::ErrorText(error), Title);
        return false;
    }
}

}  // namespace

void CloseShop() {
    CloseStores();
}

void PrepareManager() {
    ::umask(077);  // a shop's files belong to its user alone
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    QApplication::setApplicationName(Title);
    QApplication::setApplicationVersion(QStringLiteral(VELTON_VERSION));
    forms::InstallTheme();
}

void OpenShop() {
    OpenRegister();
    OpenMain();
}

bool StartManager(const QString& folder) {
    output::SetProgramFolder(folder);
    ShowWaitsOfOutput();
    KeepErrors(u"velton-manager"_s);
    forms::Run(
        [] {
            OpenRegister();
            if (!HasShop()) return void(ShowWindow(PagesWithoutShop()));
            if (IsAsDelivered()) return ShowWindow()->BeginIn(u"SetupPage"_s);
            forms::Open<ManagerLogin>([] { ShowWindow(); })->Show();
        },
        Title, true);
    return !forms::ProgramIsEnding() && !forms::LoadedForms().isEmpty();
}

}  // namespace manager
