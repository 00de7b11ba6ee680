#include "masterdata/shop/frmEditTax.h"

#include "masterdata/ListedRow.h"
#include "masterdata/TableList.h"

using namespace Qt::StringLiterals;

namespace {

const auto TaxQuery = u"SELECT * FROM Tax WHERE TaxID = '%1'"_s;

}  // namespace

frmEditTax::frmEditTax()
    : TaxEntry({.name = u"frmEditTax"_s,
                .title = tr("Edit Tax"),
                .duplicate = tr("Tax with same code or a name already exists.Change TaxID or type!")}) {
    ui.txtTaxID->setEnabled(false);
}

void frmEditTax::Form_Load() {
    rsTax_ = OpenListedRow(TaxQuery.arg(SelectedKey(forms::FindForm(u"frmTax"))));
    ShowTax();
}

void frmEditTax::Save() {
    rsTax_.Edit();
    StoreTaxFields();
    rsTax_.Update();
}
