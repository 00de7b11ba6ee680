#include "cashier/Restart.h"

#include "core/Session.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "core/mdiORVA.h"
#include "output/Channel.h"
#include "player/Keys.h"
#include "values/InstanceLock.h"

namespace drivers {

void ForgetProgram() {
    output::Channel1().Abandon();
    forms::DropLoadedForms();
    mdiORVA::Discard();
    Settle();
    CloseStores();
    UnlockFolder();
    TheSettings = {};
    TheSession = {};
    CallerForm = nullptr;
    forms::ResetProgramEnd();
}

}  // namespace drivers
