#include "masterdata/shop/frmNewTax.h"

#include "core/dbModule.h"
#include "forms/MsgBox.h"

using namespace Qt::StringLiterals;

namespace {

const auto TaxesQuery = u"SELECT * FROM Tax"_s;

}  // namespace

frmNewTax::frmNewTax()
    : TaxEntry({.name = u"frmNewTax"_s,
                .title = tr("New Tax"),
                .duplicate = tr("Tax with same code or a name already exists.Change TaxID or type!!")}) {}

void frmNewTax::Form_Load() {
    rsTax_ = MainStore().OpenRecordset(TaxesQuery);
}

void frmNewTax::Save() {
    rsTax_.AddNew();
    StoreTaxFields();
    rsTax_.Update();
    forms::Inform(tr("A new type of tax is added."), Caption());
}
