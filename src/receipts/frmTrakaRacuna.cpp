#include "receipts/frmTrakaRacuna.h"

#include "output/Folder.h"

using namespace Qt::StringLiterals;

frmTrakaRacuna::frmTrakaRacuna() : TextPreview(u"frmTrakaRacuna"_s, tr("Printed Invoices")) {
    ui.cmdSacuvaj->setToolTip(tr("Snimi na flopi,USBdisk,disk..."));
}

void frmTrakaRacuna::Form_Load() {
    ShowFile();
}

QString frmTrakaRacuna::FilePath() const {
    return output::InProgramFolder(u"\\invoices.txt"_s);
}

// Nothing in the system writes this file: the ribbon is saved only where somebody has put one beside it.
QString frmTrakaRacuna::NeededForSaving() const {
    return output::InProgramFolder(u"\\racun.txt"_s);
}
