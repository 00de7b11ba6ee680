#include "masterdata/shop/frmTax.h"

#include "core/FillList.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "masterdata/shop/frmEditTax.h"
#include "masterdata/shop/frmNewTax.h"

using namespace Qt::StringLiterals;

namespace {

const auto TaxesQuery = u"SELECT * FROM Tax"_s;
const auto TaxQuery = u"SELECT * FROM Tax WHERE TaxID = '%1'"_s;

QString Protected() {
    return frmTax::tr("Tax protected from deletion, but you can modify the data.");
}

}  // namespace

frmTax::frmTax()
    : TableList({.name = u"frmTax"_s,
                 .title = tr("Taxes"),
                 .columns = {{tr("TaxID"), Qt::AlignLeft, 110},
                             {tr("Tax rate [%]"), Qt::AlignRight, 120},
                             {tr("Tax name"), Qt::AlignLeft, -1}},
                 .rowQuery = TaxQuery,
                 .isProtected = Protected(),
                 .deleted = tr("Tax deleted.")}) {}

void frmTax::ShowRows() {
    FillTaxGrid(MainStore().OpenListing(TaxesQuery));
}

void frmTax::FillTaxGrid(store::Listing taxes) {
    FillList(*ui.lv1, std::move(taxes), {{u"TaxID"_s}, {u"Percent"_s, u"0.00"_s}, {u"Name"_s}});
}

void frmTax::ShowNew() {
    frmNewTax().ShowModal();
}

void frmTax::ShowEdit() {
    frmEditTax().ShowModal();
}

QString frmTax::DeleteQuestion(store::Recordset& tax) const {
    return tr("TaxID: %1\nTax name: %2\nAre you sure you want to delete this type of tax?")
        .arg(tax[u"TaxID"].TextOrEmpty(), tax[u"Name"].TextOrEmpty());
}

// A rate that other rows of the store refer to is protected in the same words.
void frmTax::cmdDelete_Click() {
    try {
        TableList::cmdDelete_Click();
    } catch (const values::Error& error) {
        if (error.Number() == store::RelatedRows) return forms::Tell(Protected());
        forms::Inform(forms::ErrorText(error), Caption());
    }
}
