#include "masterdata/shop/frmFirma.h"

#include "core/Settings.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"

using namespace Qt::StringLiterals;

namespace {

const auto CompanyQuery = u"SELECT * FROM Company"_s;

}  // namespace

frmFirma::frmFirma() {
    ui.setupUi(this);
    HighlightOnFocus({ui.txtAdresa, ui.txtTel, ui.txtZiro});
    Keypad({ui.txtTel, ui.txtZiro}, forms::KeypadKeys::Code);
    SaveHelpAndClose(ui.cmdSacuvaj, ui.cmdHelp, ui.cmdClose, {Qt::Key_Escape, Qt::Key_F12});
    On(ui.cmdSacuvaj, &frmFirma::cmdSacuvaj_Click);
}

// The account is not shown: a save stores what the box holds then.
void frmFirma::Form_Load() {
    rsCompany_ = MainStore().OpenRecordset(CompanyQuery);
    ui.txtNazivFirme->setText(TheSettings.NazivFirme);
    ui.txtAdresa->setText(TheSettings.Adresa);
    ui.txtJIB->setText(TheSettings.JIB);
    ui.txtTel->setText(TheSettings.Tel);
}

void frmFirma::cmdSacuvaj_Click() {
    if (ui.txtAdresa->text().isEmpty()) return forms::Inform(tr("Address can't be empty."), Caption());
    BeginRow();
    rsCompany_[u"Adresa"] = ui.txtAdresa->text();
    rsCompany_[u"Tel"] = ui.txtTel->text();
    rsCompany_[u"Ziro"] = ui.txtZiro->text();
    TheSettings.Adresa = ui.txtAdresa->text();
    TheSettings.Tel = ui.txtTel->text();
    rsCompany_.Update();
    // A row that was added is the one that the next save changes.
    rsCompany_.SetBookmark(rsCompany_.LastModified());
    forms::Inform(tr("Data modified."), Caption());
}

void frmFirma::BeginRow() {
    if (rsCompany_.AtEOF())
        rsCompany_.AddNew();
    else
        rsCompany_.Edit();
}
