#include "masterdata/shop/frmNewTax.h"

#include "core/dbModule.h"
#include "forms/MsgBox.h"

using namespace Qt::StringLiterals;

namespace {

const auto TaxesQuery = u"SELECT * FROM Tax"_s;

}  // namespace

frmNewTax::frmNewTax()
    : TaxEntry({.name = u"frmNewTax"_s,
                .title = u"New Tax"_s,
                .duplicate = u"Tax with same code or a name already exists.Change TaxID or type!!"_s}) {}

void frmNewTax::Form_Load() {
    rsTax_ = MainStore().OpenRecordset(TaxesQuery);
}

void frmNewTax::Save() {
    rsTax_.AddNew();
    StoreTaxFields();
    rsTax_.Update();
    forms::Inform(u"A new type of tax is added."_s, Caption());
}
