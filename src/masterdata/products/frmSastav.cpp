#include "masterdata/products/frmSastav.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "core/Session.h"
#include "core/dbModule.h"
#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "forms/MsgBox.h"
#include "masterdata/products/frmViewer.h"
#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::CMoney;
using values::Format;

namespace {

const auto CompositionQuery = u"SELECT * FROM ProductsCon WHERE SIF = '%1'"_s;
const auto DeleteComposition = u"DELETE * FROM ProductsCon WHERE SIF = '%1'"_s;

}  // namespace

frmSastav::frmSastav() {
    ui.setupUi(this);
    boxes_ = LineBoxes(ui);
    ui.lv1->SetColumns({{tr("ProductID"), Qt::AlignLeft, 150},
                        {tr("ProductName"), Qt::AlignLeft, -1},
                        {tr("Quantity"), Qt::AlignRight, 100},
                        {tr("Unit"), Qt::AlignLeft, 80},
                        {tr("Price"), Qt::AlignRight, 100}});
    HelpAndClose(ui.cmdHelp, ui.cmdClose);
    FunctionKeys({{Qt::Key_F2, ui.cmdF2izaberi}, {Qt::Key_F4, ui.cmdSave}, {Qt::Key_F5, ui.cmdDelete}});
    HighlightOnFocus({ui.txtProdCode}, forms::OnFocus::KeepCaret);
    HighlightOnFocus({ui.txtQuantity});
    NumericKeys({ui.txtQuantity});
    Keypad({ui.txtProdCode}, forms::KeypadKeys::Code);
    ShrinkFigures({ui.txtUnitPrice, ui.txtPrice});
    EnterMovesOn({ui.txtProdCode, ui.lv1});
    ControlKeys(ui.txtQuantity, {{Qt::Key_Return, Guarded(&frmSastav::txtQuantity_Enter)}});
    ControlKeys(ui.lv1, {{Qt::Key_Insert, Guarded(&frmSastav::EditCompositionItem)},
                         {Qt::Key_Delete, Guarded(&frmSastav::RemoveCompositionItem)}});
    OnChange(ui.txtProdCode, &frmSastav::txtProdCode_Change);
    OnLostFocus(ui.txtProdCode, &frmSastav::CheckComponentCode);
    OnChange(ui.txtDescription, &frmSastav::UpdateAddButton);
    OnChange(ui.txtQuantity, &frmSastav::txtQuantity_Change);
    On(ui.cmdAddItem, &frmSastav::cmdAddItem_Click);
    On(ui.cmdF2izaberi, &frmSastav::cmdF2izaberi_Click);
    OnMouseUp(ui.lv1, Qt::RightButton, &frmSastav::EditCompositionItem);
    OnMouseUp(ui.lv1, Qt::LeftButton, &frmSastav::RemoveCompositionItem);
    On(ui.cmdSave, &frmSastav::cmdSave_Click);
    On(ui.cmdDelete, &frmSastav::cmdDelete_Click);
}

void frmSastav::Form_Load() {
    forms::Form* editor = forms::FindForm(u"frmEditProduct");
    if (!editor) throw values::Error(values::NoObject, tr("A composition is opened from the screen of its product."));
    code_ = forms::TextOf(forms::Control(editor, u"txtProdCode"));
    auto product = LineBoxes::Find(code_);
    rsComposition_ = MainStore().OpenRecordset(CompositionQuery.arg(code_));
    ui.lblSifra->setText(product[u"ProdCode"].TextOrEmpty());
    ui.lblDescription->setText(product[u"ProdDescription"].TextOrEmpty());
    ui.lblJM->setText(product[u"Unit"].TextOrEmpty());
    ui.lblCijena->setText(Format(product[u"UnitPrice"], u"0.00"));
    LoadComposition();
    ui.txtProdCode->setFocus();
}

// A component without a product stops it: a recipe shown in part would be stored in part.
void frmSastav::LoadComposition() {
    ui.lv1->Clear();
    for (auto& part : rsComposition_) {
        auto product = LineBoxes::Find(part[u"CONsif"].TextOrEmpty());
        ui.lv1->Add({product[u"ProdCode"].TextOrEmpty(), product[u"ProdDescription"].TextOrEmpty(),
                     Format(part[u"ConSIFQty"], u"0.000"), product[u"Unit"].TextOrEmpty(),
                     Format(product[u"UnitPrice"], u"0.00")});
    }
    KeepARowSelected();
}

void frmSastav::KeepARowSelected() {
    if (ui.lv1->Selected() < 0) ui.lv1->Select(0);
}

void frmSastav::UpdateAddButton() {
    boxes_.ToggleAddButton();
}

// A query text that a typed character breaks is passed over: the boxes keep what they had.
void frmSastav::txtProdCode_Change() {
    UpdateAddButton();
    try {
        if (boxes_.LookUp()) SetOne();
    } catch (const values::Error&) {
    }
}

// Its errors belong to the lookup, and must not be reported.
void frmSastav::SetOne() {
    {
        const QSignalBlocker quiet(ui.txtQuantity);
        ui.txtQuantity->setText(u"1"_s);
    }
    txtQuantity_Change();
}

void frmSastav::CheckComponentCode() {
    if (ui.txtProdCode->text().isEmpty() || !ui.txtDescription->text().isEmpty()) return;
    if (boxes_.IsUnanswered() && boxes_.LookUp()) return SetOne();
    forms::Inform(tr("Product with this code-barcode does not exist."), mdiORVA::Window().Caption());
    ui.txtProdCode->setFocus();
    forms::SelectAll(ui.txtProdCode);
}

void frmSastav::txtQuantity_Change() {
    UpdateAddButton();
    if (!boxes_.HasQuantity()) return;
    boxes_.ShowAmount();
    boxes_.ShowTax();
}

void frmSastav::txtQuantity_Enter() {
    UpdateAddButton();
    if (ui.cmdAddItem->isEnabled()) return cmdAddItem_Click();
    forms::SendTab(ui.txtQuantity);
}

void frmSastav::cmdAddItem_Click() {
    if (boxes_.RowIn(*ui.lv1) >= 0) return;
    const int row =
        ui.lv1->Add({ui.txtProdCode->text(), ui.txtDescription->text(), Format(ui.txtQuantity->text(), u"0.000"),
                     ui.txtUnit->text(), Format(ui.txtPrice->text(), u"0.00")});
    ui.lv1->BringIntoView(row);
    KeepARowSelected();
    boxes_.StartAnew();
}

void frmSastav::cmdF2izaberi_Click() {
    ui.txtProdCode->clear();
    const QScopedValueRollback<QPointer<forms::Form>> caller(CallerForm, this);
    frmViewer().ShowModal();
}

void frmSastav::EditCompositionItem() {
    const int row = ui.lv1->Selected();
    if (row < 0) return;
    const QString quantity = ui.lv1->Text(row, 2);
    ui.txtProdCode->clear();  // the same code once more is looked up as well
    forms::SetText(ui.txtProdCode, ui.lv1->Text(row));
    ui.txtQuantity->setText(quantity);
    ui.lv1->Remove(row);
    ui.txtQuantity->setFocus();
}

void frmSastav::RemoveCompositionItem() {
    if (ui.lv1->Selected() >= 0) ui.lv1->Remove(ui.lv1->Selected());
}

void frmSastav::cmdSave_Click() {
    if (ui.lv1->Count() == 0) {
        forms::Inform(tr("You did not enter a single item in the composition."), mdiORVA::Window().Caption());
        ui.txtProdCode->setFocus();
        forms::SelectAll(ui.txtProdCode);
        return;
    }
    StoreComposition();
}

// One unit: neither a power cut nor a bad quantity nor another register that saves leaves half a recipe.
void frmSastav::StoreComposition() {
    store::Database::Batch batch(MainStore());
    DeleteCompositionRows();
    for (int row = 0; row < ui.lv1->Count(); ++row) {
        rsComposition_.AddNew();
        rsComposition_[u"sif"] = code_;
        rsComposition_[u"CONsif"] = ui.lv1->Text(row);
        rsComposition_[u"ConSIFQty"] = CMoney(ui.lv1->Text(row, 2));
        rsComposition_.Update();
    }
    batch.Commit();
}

// As they are now, and not as they were shown: another register may have saved meanwhile, and the recipe is replaced as
// a whole.
void frmSastav::DeleteCompositionRows() {
    ExecuteSql(DeleteComposition.arg(code_));
    rsComposition_ = MainStore().OpenRecordset(CompositionQuery.arg(code_));
}

void frmSastav::cmdDelete_Click() {
    ui.lv1->Clear();
}
