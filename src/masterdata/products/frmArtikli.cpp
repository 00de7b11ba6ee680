#include "masterdata/products/frmArtikli.h"

#include "core/FillList.h"
#include "core/Session.h"
#include "core/dbModule.h"
#include "forms/Controls.h"
#include "masterdata/ListedRow.h"
#include "masterdata/products/frmEditProduct.h"
#include "masterdata/products/frmNewProduct.h"

using namespace Qt::StringLiterals;

namespace {

const auto ProductsQuery = u"SELECT * FROM Products"_s;
const auto ProductQuery = u"SELECT * FROM Products WHERE ProdCode = '%1'"_s;

const std::vector<ListCell> Cells{{u"ProdCode"_s},
                                  {u"ProdDescription"_s},
                                  {u"Qty"_s},
                                  {u"Unit"_s},
                                  {u"UnitPrice"_s, u"0.00"_s},
                                  {u"TaxPercent"_s, u"0.00"_s},
                                  {u"UnitPricebezPDV"_s, u"0.00"_s},
                                  {u"VPUnitPrice"_s, u"0.00"_s},
                                  {u"VPUnitPricebezPDV"_s, u"0.00"_s}};

}  // namespace

frmArtikli::frmArtikli() {
    ui.setupUi(this);
    ui.lv1->SetColumns({{tr("ProductID - BarCode"), Qt::AlignLeft, 160},
                        {tr("Product name"), Qt::AlignLeft, -1},
                        {tr("Quantity"), Qt::AlignRight, 90},
                        {tr("Unit"), Qt::AlignLeft, 70},
                        {tr("Price"), Qt::AlignRight, 90},
                        {tr("Tax rate"), Qt::AlignRight, 84},
                        {tr("Price without Tax"), Qt::AlignLeft, 130},
                        {tr("Second Price"), Qt::AlignLeft, 0},
                        {tr("Second Price without Tax"), Qt::AlignLeft, 0}});
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
    SetSearchFields({{tr("Product name"), u"ProdDescription"_s}, {tr("ProductID - BarCode"), u"ProdCode"_s}});
}

bool frmArtikli::Form_Unload() {
    isChoosing_ = false;
    return true;
}

void frmArtikli::ShowRows(const QString& query) {
    FillProductGrid(MainStore().OpenListing(query));
}

void frmArtikli::FillProductGrid(store::Listing products) {
    FillList(*ui.lv1, std::move(products), Cells);
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
    auto product = OpenListedRow(ProductQuery.arg(ui.lv1->SelectedText()));
    const QString question = tr("ProductID - Barcode: %1\nProduct name: %2\nDo you want to delete this item?")
                                 .arg(product[u"ProdCode"].TextOrEmpty(), product[u"ProdDescription"].TextOrEmpty());
    DeleteRow(product, question, tr("Product deleted."));
}
