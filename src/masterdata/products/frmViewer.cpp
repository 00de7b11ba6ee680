#include "masterdata/products/frmViewer.h"

#include "core/FillList.h"
#include "core/Session.h"
#include "core/dbModule.h"
#include "forms/Controls.h"

using namespace Qt::StringLiterals;

namespace {

const auto ListedQuery = u"SELECT ProdCode, ProdDescription, Qty, Unit, UnitPrice, TaxPercent FROM Products"_s;
const auto ProductsQuery = u"SELECT * FROM Products"_s;
const auto OptionsQuery = u"SELECT * FROM Options"_s;

const std::vector<ListCell> Cells{
    {u"ProdCode"_s}, {u"ProdDescription"_s}, {u"UnitPrice"_s, u"0.00"_s}, {u"TaxPercent"_s, u"0.00"_s}, {u"Qty"_s},
    {u"Unit"_s}};

}  // namespace

frmViewer::frmViewer() {
    ui.setupUi(this);
    ui.lv1->SetColumns({{tr("ProductID-BarCode"), Qt::AlignLeft, 160},
                        {tr("Product Name"), Qt::AlignLeft, -1},
                        {tr("Price"), Qt::AlignRight, 90},
                        {tr("Tax Rate"), Qt::AlignRight, 90},
                        {tr("Quantity"), Qt::AlignRight, 90},
                        {tr("Unit"), Qt::AlignLeft, 80}});
    SearchWith(ui.search, ui.lv1);
    HelpAndClose(ui.cmdHelp, ui.cmdClose, {Qt::Key_Escape, Qt::Key_F12});
    FunctionKeys({{Qt::Key_F11, ui.search->cmdRefresh}});
    ControlKeys(ui.lv1, {{Qt::Key_Return, Guarded(&frmViewer::lv1_Enter)}});
    OnDoubleClick(ui.lv1, &frmViewer::Pick);
}

// Listing all products takes its time in a large shop: the register's setting says whether the window opens with them.
void frmViewer::Form_Load() {
    base_ = ListedQuery;
    SetSearchFields({{tr("Product Name"), u"ProdDescription"_s}, {tr("ProductID-BarCode"), u"ProdCode"_s}});
    auto products = MainStore().OpenListing(base_);
    auto options = OptionsStore().OpenRecordset(OptionsQuery);
    const values::Value atOnce = options[u"PrikaziOdmah"];
    if (!atOnce.IsNull() && atOnce.ToBool()) return FillViewerGrid(std::move(products));
    ui.lv1->SetEmptyText(tr("Type what you look for, or press F11 for all."));
}

void frmViewer::ShowRows(const QString& query) {
    FillViewerGrid(MainStore().OpenListing(query));
}

void frmViewer::cmdRefresh_Click() {
    base_ = ProductsQuery;
    SearchScreen::cmdRefresh_Click();
}

void frmViewer::FillViewerGrid(store::Listing products) {
    ui.lv1->SetEmptyText(tr("Nothing is found."));
    FillList(*ui.lv1, std::move(products), Cells);
}

void frmViewer::lv1_Enter() {
    if (ui.lv1->Selected() >= 0) return Pick();
    forms::SendTab(ui.lv1);
}

void frmViewer::Pick() {
    forms::SetText(forms::Control(CallerForm, u"txtProdCode"), ui.lv1->SelectedText());
    Unload();
}
