#include "receipts/frmRacunPregled.h"

#include "output/Folder.h"

using namespace Qt::StringLiterals;

frmRacunPregled::frmRacunPregled() : TextPreview(u"frmRacunPregled"_s, tr("Print preview")) {}

void frmRacunPregled::Preview(const QString& file, const QString& title) {
    frmRacunPregled preview;
    preview.ui.lblNazivFajla->setText(file);
    if (!title.isEmpty()) preview.setWindowTitle(title);
    preview.ShowModal();
}

void frmRacunPregled::Form_Activate() {
    ShowFile();
    TextPreview::Form_Activate();
}

// Without a name this is the folder itself, which is no text to show.
QString frmRacunPregled::FilePath() const {
    return output::InProgramFolder(ui.lblNazivFajla->text());
}
