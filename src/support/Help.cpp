#include "support/Help.h"

#include "core/Session.h"
#include "support/frmHelp.h"

void ShowHelp(const QString& file) {
    HelpFileName = file;
    frmHelp().ShowModal();
}
