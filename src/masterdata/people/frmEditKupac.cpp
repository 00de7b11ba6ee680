#include "masterdata/people/frmEditKupac.h"

#include "core/Session.h"
#include "forms/Controls.h"
#include "masterdata/ListedRow.h"

using namespace Qt::StringLiterals;

namespace {

const auto CustomerQuery = u"SELECT * FROM Custumer WHERE Sifra = %1"_s;

}  // namespace

frmEditKupac::frmEditKupac()
    : CustomerEntry(
          {.name = u"frmEditKupac"_s, .title = tr("Edit custumer - supplier"), .ident = tr("Identification:")}) {
    ui.txtProdCode->setReadOnly(true);
    ui.txtProdCode->setFocusPolicy(Qt::NoFocus);
}

void frmEditKupac::Form_Load() {
    lv1_ = forms::Control<forms::ListView>(CallerForm, u"lv1");
    row_ = lv1_->Selected();
    rsCustomer_ = OpenListedRow(CustomerQuery.arg(lv1_->SelectedText()));
    ShowCustomer();
}

void frmEditKupac::BeginRow() {
    rsCustomer_.Edit();
}

void frmEditKupac::RowStored() {
    RefreshCustomerRow();
}

// The rate in the last column is seen only when the list is read again.
void frmEditKupac::RefreshCustomerRow() {
    const QLineEdit* boxes[] = {ui.txtDescription, ui.txtAdresa, ui.txtIB, ui.txtTelefon, ui.txtFax};
    int column = 0;
    for (const QLineEdit* box : boxes) lv1_->SetText(row_, ++column, box->text());
}
