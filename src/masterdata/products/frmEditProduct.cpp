#include "masterdata/products/frmEditProduct.h"

#include "core/dbModule.h"
#include "forms/Controls.h"
#include "forms/OneLine.h"
#include "masterdata/ListedRow.h"
#include "masterdata/products/frmSastav.h"
#include "output/Folder.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;
using values::Format;

namespace {

const auto ProductQuery = u"SELECT * FROM Products WHERE ProdCode = '%1'"_s;

// A text that is no longer in its table is shown, and saved, all the same.
void Choose(QComboBox* list, const QString& text) {
    if (!text.isEmpty() && list->findText(text) < 0) list->addItem(text);
    list->setCurrentText(text);
}

}  // namespace

frmEditProduct::frmEditProduct()
    : ProductEntry({.name = u"frmEditProduct"_s,
                    .title = tr("Edit product"),
                    .save = u"cmdUpdate"_s,
                    .second = u"cmdSastav"_s,
                    //: shows the composition
                    .secondCaption = tr("F4-Structure"),
                    .labelEnd = {},
                    .pictureTitle = tr("Select a thumbnail - icon"),
                    .allPictures = tr("All images"),
                    .pictureMissing = tr("File with such name does not exist!")}) {
    ui.txtProdCode->setReadOnly(true);
    ui.txtProdCode->setFocusPolicy(Qt::NoFocus);
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose}});
    On(ui.cmdSecond, &frmEditProduct::cmdSastav_Click);
}

void frmEditProduct::Form_Load() {
    lv1_ = forms::Control<forms::ListView>(forms::FindForm(u"frmArtikli"), u"lv1");
    row_ = lv1_->Selected();
    const QString query = ProductQuery.arg(lv1_->SelectedText());
    FillTaxList();
    FillUnitList();
    rsProduct_ = OpenListedRow(query);
    ShowProduct();
}

// A tax that is no longer in its table has no other percent than the product's own.
void frmEditProduct::ShowTax(store::Recordset& tax) {
    ProductEntry::ShowTax(tax);
    if (tax.AtEOF()) ui.txtTaxPercent->setText(rsProduct_[u"TaxPercent"].TextOrEmpty());
    ui.txtTaxName->setText(ValueOf(tax, u"Name").TextOrEmpty());
}

// The percent comes after the tax: it is the product's own until a tax is chosen.
void frmEditProduct::ShowProduct() {
    forms::ShowWhole(ui.txtProdCode, rsProduct_[u"ProdCode"].TextOrEmpty());
    forms::ShowWhole(ui.txtDescription, rsProduct_[u"ProdDescription"].TextOrEmpty());
    ui.txtQuantity->setText(rsProduct_[u"Qty"].TextOrEmpty());
    Choose(ui.txtUnit, rsProduct_[u"Unit"].TextOrEmpty());
    ui.txtUnitPrice->setText(Format(rsProduct_[u"UnitPrice"], u"0.00"));
    ui.txtUnitPricebezPDV->setText(Format(rsProduct_[u"UnitPricebezPDV"], u"0.00"));
    ui.txtVPUnitPrice->setText(Format(rsProduct_[u"VPUnitPrice"], u"0.00"));
    ui.txtVPUnitPricebezPDV->setText(Format(rsProduct_[u"VPUnitPricebezPDV"], u"0.00"));
    Choose(ui.cboTax, rsProduct_[u"TaxID"].TextOrEmpty());
    ui.txtTaxPercent->setText(rsProduct_[u"TaxPercent"].TextOrEmpty());

    ui.txtPicturePath->setText(rsProduct_[u"Pict"].TextOrEmpty());
    if (ui.txtPicturePath->text().isEmpty()) return;
    const QString picture = output::InProgramFolder(u"\\img\\"_s + ui.txtPicturePath->text());
    // A file that is no picture is told, but the product can be changed.
    if (FileExists(picture)) Run([&] { ShowPicture(picture); });
}

void frmEditProduct::StoreProduct() {
    UpdateProduct();
    RefreshProductRow();
}

void frmEditProduct::ProductStored() {
    Unload();
}

// What had no value, and was given none, is left without: no text in quotes could say so.
QString frmEditProduct::Assignment(const QString& field, const QString& value) {
    const bool isNull = value.isEmpty() && rsProduct_[field].IsNull();
    return u' ' + field + u" = "_s + (isNull ? u"Null"_s : u'\'' + value + u'\'');
}

void frmEditProduct::UpdateProduct() {
    const QStringList fields{Assignment(u"ProdCode"_s, ui.txtProdCode->text()),
                             Assignment(u"ProdDescription"_s, ui.txtDescription->text()),
                             Assignment(u"Qty"_s, ui.txtQuantity->text()),
                             Assignment(u"Unit"_s, ui.txtUnit->currentText()),
                             Assignment(u"UnitPrice"_s, PriceIn(ui.txtUnitPrice)),
                             Assignment(u"UnitPricebezPDV"_s, PriceIn(ui.txtUnitPricebezPDV)),
                             Assignment(u"VPUnitPrice"_s, PriceIn(ui.txtVPUnitPrice)),
                             Assignment(u"VPUnitPricebezPDV"_s, PriceIn(ui.txtVPUnitPricebezPDV)),
                             Assignment(u"TaxPercent"_s, PriceIn(ui.txtTaxPercent)),
                             Assignment(u"Pict"_s, ui.txtPicturePath->text()),
                             Assignment(u"TaxID"_s, ui.cboTax->currentText())};
    ExecuteSql(u"UPDATE Products SET "_s + fields.join(u',') + u" WHERE ProdCode = '"_s + ui.txtProdCode->text() +
               u"'"_s);
}

void frmEditProduct::RefreshProductRow() {
    const QString cells[] = {ui.txtDescription->text(),  ui.txtQuantity->text(),
                             ui.txtUnit->currentText(),  PriceIn(ui.txtUnitPrice),
                             ui.txtTaxPercent->text(),   PriceIn(ui.txtUnitPricebezPDV),
                             PriceIn(ui.txtVPUnitPrice), PriceIn(ui.txtVPUnitPricebezPDV)};
    int column = 0;
    for (const QString& cell : cells) lv1_->SetText(row_, ++column, cell);
}

void frmEditProduct::cmdSastav_Click() {
    frmSastav().ShowModal();
}
