#include "config/frmWinPrinter.h"

#include <QPageSetupDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "forms/FocusReturn.h"
#include "output/PagePrinter.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList Fonts{u"Courier New"_s, u"Courier New Bold"_s, u"OCR-B 10 BT"_s, u"Lucida Console"_s};

}  // namespace

frmWinPrinter::frmWinPrinter() {
    ui.setupUi(this);
    ui.List1->SetColumns({{tr("Font list"), Qt::AlignLeft, -1}});
    StoreErrorsEndProgram();
    HelpAndClose(ui.cmdHelp, ui.cmdCancel, {Qt::Key_Escape, Qt::Key_F12});
    FunctionKeys({{Qt::Key_F5, ui.cmdOK}});
    HighlightOnFocus({ui.txtFont});
    velFont_ = {&Settings::VelFont, {{ui.optVelFont1, u"8"_s}, {ui.optVelFont2, u"9"_s}, {ui.optVelFont3, u"10"_s}}};
    // A click on the entry that is chosen already, and the arrow keys, which choose as a click does.
    connect(ui.List1, &QAbstractItemView::clicked, this, Guarded(&frmWinPrinter::List1_Click));
    connect(ui.List1->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            Guarded(&frmWinPrinter::List1_Click));
    On(ui.cmdPrinter, &frmWinPrinter::cmdPrinter_Click);
    On(ui.cmdOK, &frmWinPrinter::cmdOK_Click);
}

void frmWinPrinter::Form_Load() {
    rsOptions_ = OptionsRecord::OfThisRegister();
    velFont_.Load(rsOptions_);
    ui.txtFont->setText(TheSettings.Font);
    for (const QString& font : Fonts) ui.List1->Add({font});
}

void frmWinPrinter::List1_Click() {
    if (ui.List1->Selected() >= 0) ui.txtFont->setText(ui.List1->SelectedText());
}

// Where there is no printer, the page setup of the PDF that takes its place.
void frmWinPrinter::cmdPrinter_Click() {
    const forms::FocusReturn focus;
    QPrinter printer(QPrinter::HighResolution);
    if (QPrinterInfo::defaultPrinter().isNull()) printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageLayout(output::ThePagePrinter().Paper());
    QPageSetupDialog dialog(&printer, this);
    const bool chosen = dialog.exec() == QDialog::Accepted;
    if (forms::ProgramIsEnding()) throw forms::ProgramEnds{};
    if (chosen) output::ThePagePrinter().SetPaper(printer.pageLayout());
    focus.GiveBack();
}

void frmWinPrinter::cmdOK_Click() {
    rsOptions_.Edit();
    velFont_.Save(rsOptions_);
    rsOptions_.SaveAndUse(&Settings::Font, ui.txtFont->text());
    rsOptions_.Update();
    Unload();
}
