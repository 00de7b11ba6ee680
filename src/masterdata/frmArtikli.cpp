#include "masterdata/frmArtikli.h"

#include "core/FillList.h"
#include "core/Session.h"
#include "core/dbModule.h"
#include "forms/Controls.h"
#include "masterdata/frmEditProduct.h"
#include "masterdata/frmNewProduct.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;
using values::Format;

namespace {

const auto ProductsQuery = u"SELECT * FROM Products"_s;
const auto ProductQuery = u"SELECT * FROM Products WHERE ProdCode = '%1'"_s;

const auto NameEntry = u"Product name"_s;
const auto CodeEntry = u"ProductID - BarCode"_s;

}  // namespace

frmArtikli::frmArtikli() {
    ui.setupUi(this);
    ui.lv1->SetColumns({{u"ProductID - BarCode"_s, Qt::AlignLeft, 160},
                        {u"Product name"_s, Qt::AlignLeft, -1},
                        {u"Quantity"_s, Qt::AlignRight, 90},
                        {u"Unit"_s, Qt::AlignLeft, 70},
                        {u"Price"_s, Qt::AlignRight, 90},
                        {u"Tax rate"_s, Qt::AlignRight, 84},
                        {u"Price without Tax"_s, Qt::AlignLeft, 130},
                        {u"Second Price"_s, Qt::AlignLeft, 0},
                        {u"Second Price without Tax"_s, Qt::AlignLeft, 0}});
    KeepList(ui);
    ControlKeys(ui.lv1, {{Qt::Key_Return, Guarded(&frmArtikli::Activate)}});
    OnDoubleClick(ui.lv1, &frmArtikli::Activate);
}

// There is one list of products: when it is open already it comes to the front, as it is.
void frmArtikli::Choose() {
    auto* list = qobject_cast<frmArtikli*>(forms::FindForm(u"frmArtikli"));
    if (!list) list = forms::Open<frmArtikli>();
    list->isChoosing_ = true;
    // What was chosen would have nowhere to go.
    connect(CallerForm, &forms::Form::Unloaded, list, &forms::Form::Unload, Qt::UniqueConnection);
    list->Show();
}

// A chooser that is open gives way: there are never two lists.
void frmArtikli::Keep() {
    if (auto* chooser = forms::FindForm(u"frmArtikli")) chooser->Unload();
    frmArtikli().ShowModal();
}

void frmArtikli::Form_Load() {
    base_ = ProductsQuery;
    ShowRows(base_);
    SetSearchFields({NameEntry, CodeEntry});
}

bool frmArtikli::Form_Unload() {
    isChoosing_ = false;
    return true;
}

QString frmArtikli::SearchedField(const QString& entry) const {
    return entry == NameEntry ? u"ProdDescription"_s : u"ProdCode"_s;
}

void frmArtikli::ShowRows(const QString& query) {
    rsProducts_ = MainStore().OpenRecordset(query);
    FillProductGrid();
}

void frmArtikli::FillProductGrid() {
    FillList(*ui.lv1, rsProducts_, [](store::Recordset& product) -> QStringList {
        return {product[u"ProdCode"].TextOrEmpty(),
                product[u"ProdDescription"].TextOrEmpty(),
                product[u"Qty"].TextOrEmpty(),
                product[u"Unit"].TextOrEmpty(),
                Format(product[u"UnitPrice"].Get(), u"0.00"),
                Format(product[u"TaxPercent"].Get(), u"0.00"),
                Format(product[u"UnitPricebezPDV"].Get(), u"0.00"),
                Format(product[u"VPUnitPrice"].Get(), u"0.00"),
                Format(product[u"VPUnitPricebezPDV"].Get(), u"0.00")};
    });
}

void frmArtikli::Activate() {
    if (!isChoosing_) return cmdUpdate_Click();
    const QString code = ui.lv1->SelectedText();
    if (CallerForm) forms::SetText(forms::Control(CallerForm, u"txtProdCode"), code);
    Unload();
}

// The list is not read again after a new product, F11 brings it in; an edited one writes its row itself.
void frmArtikli::cmdNew_Click() {
    frmNewProduct().ShowModal();
}

void frmArtikli::cmdUpdate_Click() {
    frmEditProduct().ShowModal();
}

void frmArtikli::cmdDelete_Click() {
    if (ui.lv1->Count() == 0) return;
    auto product = MainStore().OpenRecordset(ProductQuery.arg(ui.lv1->SelectedText()));
    const QString question = u"ProductID - Barcode: "_s + product[u"ProdCode"].TextOrEmpty() + u"\nProduct name: "_s +
                             product[u"ProdDescription"].TextOrEmpty() + u"\nDo you want to delete this item?"_s;
    DeleteRow(product, question, u"Product deleted."_s);
}
