#include "masterdata/products/frmNewProduct.h"

#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

namespace {

const auto ProductsQuery = u"SELECT * FROM Products"_s;

}  // namespace

frmNewProduct::frmNewProduct()
    : ProductEntry({.name = u"frmNewProduct"_s,
                    .title = tr("New product"),
                    .save = u"cmdAdd"_s,
                    .second = u"cmdDelete"_s,
                    .secondCaption = tr("ESC-Delete"),
                    .labelEnd = u":"_s,
                    .pictureTitle = tr("Choose image - icon"),
                    .allPictures = tr("Sve slike"),
                    .pictureMissing = tr("File not exist!")}) {
    ui.cmdSecond->setProperty("role", u"danger"_s);
    FunctionKeys({{Qt::Key_Escape, ui.cmdSecond}});
    OnLostFocus(ui.txtQuantity, &frmNewProduct::txtQuantity_LostFocus);
    On(ui.cmdSecond, &frmNewProduct::cmdDelete_Click);
}

void frmNewProduct::Form_Load() {
    FillTaxList();
    FillUnitList();
    rsProducts_ = MainStore().OpenRecordset(ProductsQuery);
    SetProductDefaults();
}

void frmNewProduct::txtQuantity_LostFocus() {
    ui.txtQuantity->setText(values::Format(ui.txtQuantity->text(), u"0.00"));
}

void frmNewProduct::StoreProduct() {
    rsProducts_.AddNew();
    StoreProductFields();
    rsProducts_.Update();
}

void frmNewProduct::ProductStored() {
    forms::Inform(tr("The new product is added."), Caption());
    ClearProductFields();
    SetProductDefaults();
    cmdDelPic_Click();
    ui.txtProdCode->setFocus();
}

// The picture stays on the screen; its name goes with the other fields.
void frmNewProduct::cmdDelete_Click() {
    ClearProductFields();
    SetProductDefaults();
    ui.txtProdCode->setFocus();
}

void frmNewProduct::ClearProductFields() {
    for (auto* box : findChildren<QLineEdit*>()) box->clear();
    ui.cboTax->setCurrentIndex(-1);
    ui.txtUnit->setCurrentIndex(-1);
}

void frmNewProduct::SetProductDefaults() {
    for (QLineEdit* price : Prices()) price->setText(values::Format(0.0, u"0.00"));
    ui.txtQuantity->setText(u"0"_s);
}

void frmNewProduct::StoreProductFields() {
    rsProducts_[u"ProdCode"] = ui.txtProdCode->text();
    rsProducts_[u"ProdDescription"] = ui.txtDescription->text();
    rsProducts_[u"Qty"] = ui.txtQuantity->text();
    rsProducts_[u"Unit"] = ui.txtUnit->currentText();
    rsProducts_[u"UnitPrice"] = PriceIn(ui.txtUnitPrice);
    rsProducts_[u"UnitPricebezPDV"] = PriceIn(ui.txtUnitPricebezPDV);
    rsProducts_[u"VPUnitPrice"] = PriceIn(ui.txtVPUnitPrice);
    rsProducts_[u"VPUnitPricebezPDV"] = PriceIn(ui.txtVPUnitPricebezPDV);
    rsProducts_[u"TaxID"] = ui.cboTax->currentText();
    rsProducts_[u"TaxPercent"] = ui.txtTaxPercent->text();
    rsProducts_[u"Pict"] = ui.txtPicturePath->text();
}
