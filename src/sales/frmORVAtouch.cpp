#include "sales/frmORVAtouch.h"

#include "core/Session.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "forms/MsgBox.h"
#include "forms/ScanBurst.h"
#include "masterdata/clicktable/ClickTable.h"
#include "masterdata/clicktable/Module1.h"
#include "output/Folder.h"
#include "receipts/InvoiceLists.h"
#include "sales/LogOff.h"
#include "sales/frmChangeUser.h"
#include "support/Help.h"
#include "values/Clock.h"
#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::CMoney;
using values::Format;

namespace {

const auto DetailsQuery = u"SELECT * FROM SalesDetails"_s;
const auto InvoicesQuery = u"SELECT * FROM Invoices"_s;
const auto LastPeriodQuery = u"SELECT Max(Val(Sales.SalesID)) AS [current] FROM Sales"_s;
const auto PeriodQuery = u"SELECT * FROM Sales WHERE SalesID = '%1'"_s;
const auto LastInvoiceQuery = u"SELECT Max(Val([InvoiceID])) AS [current] FROM Invoices"_s;
const auto LastOrNoQuery = u"SELECT orNo FROM Invoices WHERE InvoiceID = '%1'"_s;

const auto RunningTotalPattern = u"###,###,##0.00"_s;

}  // namespace

frmORVAtouch::frmORVAtouch() {
    ui.setupUi(this);
    boxes_ = LineBoxes(ui);
    display_ = new forms::Flash(ui.txtPosDisplay);
    SetLineColumns(*ui.lv1, LinesOf::Sale);
    SetRecapColumns(*ui.lvPorez);

    FunctionKeys({{Qt::Key_Escape, ui.cmdESCponisti},
                  {Qt::Key_F1, ui.cmdHelp},
                  {Qt::Key_F2, ui.cmdF2izaberi},
                  {Qt::Key_F5, ui.cmdNew},
                  {Qt::Key_F6, ui.cmdPrijava},
                  {Qt::Key_F7, ui.cmdOdjava},
                  {Qt::Key_F8, ui.cmdTraka},
                  {Qt::Key_F9, ui.cmdOsvjezi},
                  {Qt::Key_F10, ui.cmdNoviArtikal},
                  {Qt::Key_F12, ui.cmdLogOff}});
    HighlightOnFocus({ui.txtProdCode, ui.txtQuantity, ui.txtKupac, ui.txtIB});
    ShrinkFigures({ui.txtQuantity, ui.txtUnitPrice, ui.txtPrice, ui.txtTotalAmount});
    NumericKeys({ui.txtQuantity}, u"-"_s);
    Keypad({ui.txtProdCode, ui.txtIB}, forms::KeypadKeys::Code);
    Keypad({ui.txtKupac}, forms::KeypadKeys::Text);
    KeypadSpares({ui.txtTotalAmount});
    EnterMovesOn({ui.lv1, ui.txtKupac, ui.txtIB});
    ControlKeys(ui.txtProdCode, {{Qt::Key_Return, Guarded(&frmORVAtouch::txtProdCode_Enter)}});
    ControlKeys(ui.txtQuantity, {{Qt::Key_Return, Guarded(&frmORVAtouch::txtQuantity_Enter)}});
    ListKeys(ui.lv1, {{Qt::Key_Delete, Guarded(&frmORVAtouch::DeleteLine)},
                      {Qt::Key_Insert, Guarded(&frmORVAtouch::ChangeLineQuantity)}});

    OnChange(ui.txtProdCode, &frmORVAtouch::txtProdCode_Change);
    OnLostFocus(ui.txtProdCode, &frmORVAtouch::txtProdCode_LostFocus);
    OnChange(ui.txtDescription, &frmORVAtouch::txtDescription_Change);
    OnChange(ui.txtQuantity, &frmORVAtouch::txtQuantity_Change);
    On(ui.cmdAddItem, &frmORVAtouch::cmdAddItem_Click);
    OnMouseUp(ui.lv1, Qt::LeftButton, &frmORVAtouch::DeleteLine);
    OnMouseUp(ui.lv1, Qt::RightButton, &frmORVAtouch::ChangeLineQuantity);
    On(ui.cmdNew, &frmORVAtouch::cmdNew_Click);
    On(ui.cmdESCponisti, &frmORVAtouch::cmdESCponisti_Click);
    On(ui.cmdF2izaberi, &frmORVAtouch::cmdF2izaberi_Click);
    On(ui.cmdPrijava, &frmORVAtouch::cmdPrijava_Click);
    OnChange(ui.txtUserFullName, &frmORVAtouch::txtUserFullName_Change);
    OnMouseUp(ui.txtUserFullName, Qt::LeftButton, &frmORVAtouch::cmdPrijava_Click);
    OnMouseUp(ui.Frame10, Qt::LeftButton, &frmORVAtouch::cmdPrijava_Click);
    On(ui.cmdOdjava, &frmORVAtouch::cmdOdjava_Click);
    On(ui.cmdTraka, &frmORVAtouch::cmdTraka_Click);
    On(ui.cmdOsvjezi, &frmORVAtouch::cmdOsvjezi_Click);
    On(ui.cmdNoviArtikal, &frmORVAtouch::cmdNoviArtikal_Click);
    On(ui.cmdLogOff, &frmORVAtouch::cmdLogOff_Click);
    On(ui.cmdHelp, &frmORVAtouch::cmdHelp_Click);
    connect(ui.clickTable, &ClickTable::Clicked, this, [this](int index) { Run([&] { Command2_Click(index); }); });
    CloseInvoice();
    ShowCustomer(false);
}

void frmORVAtouch::Form_Load() {
    PType_ = 0;
    CAmount_ = u"0"_s;
    CNumber_ = u"0"_s;
    Banko_ = u" "_s;
    ui.Text1->setText(TheSession.LoginNumber);
    ui.cboID->setEditText(TheSession.SessionUserID);
    ui.txtUserFullName->setText(TheSession.SessionUserName);
    rsSalesDetails_ = MainStore().OpenRecordset(DetailsQuery);
    rsInvoices_ = MainStore().OpenRecordset(InvoicesQuery);
    FindPeriod();
    FindNumbers();
    LoadTabCaptions(this);
    LoadClickTable(this);
    ShowCustomer(TheSettings.Kupac);
    cmdNew_Click();
}

// Ctrl+Tab leads to the touch table and back; the walk of the Tab key leaves it out, for a scanner types on. What it
// types goes where codes belong, wherever the focus is.
bool frmORVAtouch::Form_KeyDown(QKeyEvent& key) {
    const bool isAtTable = ui.clickTable->isAncestorOf(focusWidget());
    if (isAtTable && forms::IsCharacter(key) && key.key() != Qt::Key_Space) {
        ui.txtProdCode->setFocus();
        QCoreApplication::sendEvent(ui.txtProdCode, &key);
        return true;
    }
    if (key.key() != Qt::Key_Tab || key.modifiers() != Qt::ControlModifier) return Form::Form_KeyDown(key);
    if (isAtTable)
        ui.txtProdCode->setFocus();
    else
        ui.clickTable->TakeFocus();
    return true;
}

void frmORVAtouch::ShowCustomer(bool visible) {
    ui.panelCustomer->setVisible(visible);
    ui.lblKupac->setVisible(visible);
    ui.txtKupac->setVisible(visible);
    ui.txtIB->setVisible(visible);
    if (isVisible()) layout_.Arrange();
}

void frmORVAtouch::resizeEvent(QResizeEvent* event) {
    Form::resizeEvent(event);
    if (isVisible()) layout_.Arrange();
}

// Another step of type: its sheet is in force only when this has ended.
void frmORVAtouch::changeEvent(QEvent* event) {
    Form::changeEvent(event);
    if (event->type() != QEvent::StyleChange || !IsLoaded()) return;
    const auto follow = [this] {
        if (isVisible()) layout_.Arrange();
        txtUserFullName_Change();
    };
    QMetaObject::invokeMethod(this, follow, Qt::QueuedConnection);
}

// Only now do the parts of a form that nobody saw before have their sizes.
void frmORVAtouch::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    layout_.Arrange();
}

// The open period goes on, with the total that its row holds; after a closed one, or none, a new one begins.
void frmORVAtouch::FindPeriod() {
    auto rs = MainStore().OpenRecordset(LastPeriodQuery);
    rs.MoveFirst();
    if (rs[u"current"].IsNull()) return NewPeriod(1);

    const QString last = rs[u"current"].Text();
    SalesPeriodID_ = values::CInt16(values::Val(last));
    rsSales_ = MainStore().OpenRecordset(PeriodQuery.arg(last));
    const bool closed = rsSales_[u"Closed"].YesNo();
    const QString total = rsSales_[u"TotalSales"].Text();
    if (closed) return NewPeriod(values::CInt16(SalesPeriodID_ + 1));
    mdiORVA::Window().SetRunningTotal(Format(CMoney(total), RunningTotalPattern));
}

void frmORVAtouch::NewPeriod(qint16 number) {
    SalesPeriodID_ = number;
    mdiORVA::Window().SetRunningTotal(Format(values::Money(), RunningTotalPattern));
    rsSales_ = MainStore().OpenRecordset(PeriodQuery.arg(number));
    rsSales_.AddNew();
    StartSalesPeriod();
    rsSales_.Update();
    rsSales_.SetBookmark(rsSales_.LastModified());
}

void frmORVAtouch::StartSalesPeriod() {
    rsSales_[u"Kas"] = 0;  // the period belongs to the store, not to a register
    rsSales_[u"SalesID"] = SalesPeriodID_;
    rsSales_[u"TotalSales"] = Format(CMoney(mdiORVA::Window().RunningTotal()), u"0.00");
    rsSales_[u"TimeGenerated"] = values::TimeNow();
    rsSales_[u"DateGenerated"] = values::Today();
    rsSales_[u"UserID"] = ui.cboID->currentText();
}

void frmORVAtouch::UpdateSalesPeriod() {
    rsSales_[u"TotalSales"] = Format(CMoney(mdiORVA::Window().RunningTotal()), u"0.00");
    rsSales_[u"DateStoped"] = values::Today();
    rsSales_[u"TimeStoped"] = values::TimeNow();
}

void frmORVAtouch::FindNumbers() {
    auto rs = MainStore().OpenRecordset(LastInvoiceQuery);
    rs.MoveFirst();
    if (rs[u"current"].IsNull()) {
        RacunBroj_ = 0;
        RacunOrNo = 0;
        return;
    }
    RacunBroj_ = values::CInt32(values::Val(rs[u"current"].Text()));
    auto last = MainStore().OpenRecordset(LastOrNoQuery.arg(RacunBroj_));
    RacunOrNo = values::CInt32(values::Val(last[u"OrNo"].Text()));
}

// Above 32 bits an overflow, not a number that counts on from below.
qint32 frmORVAtouch::Next(qint32 number) {
    return values::CInt32(double{1} + number);
}

void frmORVAtouch::cmdNew_Click() {
    if (!isOpen_) return OpenInvoice();
    if (ui.cboID->currentText().isEmpty()) return forms::Inform(tr("Choose cashier."), mdiORVA::Window().Caption());
    if (ui.lv1->Count() == 0) {
        forms::Inform(tr("You did not enter a single item on the invoice."), mdiORVA::Window().Caption());
        ui.txtProdCode->setFocus();
        forms::SelectAll(ui.txtProdCode);
        return;
    }
    PostInvoice();
}

void frmORVAtouch::OpenInvoice() {
    ui.txtInvoiceNumber->setText(QString::number(Next(RacunBroj_)));
    ui.txtORNumber->setText(QString::number(Next(RacunOrNo)));
    EnableWork(true);
    if (ui.txtProdCode->isEnabled()) ui.txtProdCode->setFocus();
    ui.txtPosDisplay->setText(tr("New Invoice"));
    ShowOpen(true);
}

void frmORVAtouch::CloseInvoice() {
    EnableWork(false);
    ShowOpen(false);
}

// The panel of the entry stands beside the frame that it belongs to, since a low screen has it above both columns.
void frmORVAtouch::EnableWork(bool enabled) {
    ui.Frame2->setEnabled(enabled);
    ui.panelEntry->setEnabled(enabled);
    ui.Frame3->setEnabled(enabled);
}

void frmORVAtouch::ShowOpen(bool isOpen) {
    isOpen_ = isOpen;
    ui.cmdNew->setText(isOpen ? tr("F5-Print") : tr("F5-New"));
    const QString picture = isOpen ? u"\\images\\printer.gif"_s : u"\\images\\pisi.gif"_s;
    forms::LoadPicture(ui.cmdNew, output::InProgramFolder(picture));
    ui.cmdNew->update();
}

void frmORVAtouch::cmdESCponisti_Click() {
    if (!forms::Ask(tr("Do you want cancel the invoice?"), mdiORVA::Window().Caption())) return;
    ui.lv1->Clear();
    for (QLineEdit* box :
         {ui.txtProdCode, ui.txtTotalAmount, ui.txtTaxTotal, ui.txtInvoiceNumber, ui.txtORNumber, ui.txtKupac, ui.txtIB,
          ui.txtTaxPercent, ui.txtUnitPrice, ui.txtQuantity, ui.txtPrice, ui.txtTaxAmount, ui.txtPosDisplay})
        box->clear();
    ShowCount();
    CloseInvoice();
    if (TheSettings.NoviRacunAutomatski) cmdNew_Click();
}

// The name stands right beside its label, and the box stays wide enough to be touched.
void frmORVAtouch::txtUserFullName_Change() {
    constexpr int narrowest = 60;
    const int text = ui.txtUserFullName->fontMetrics().horizontalAdvance(ui.txtUserFullName->text());
    ui.txtUserFullName->setFixedWidth(qMax(narrowest, text + 16));
}

void frmORVAtouch::cmdPrijava_Click() {
    if (TheSettings.ChangeUser == u"1") frmChangeUser().ShowModal();
    if (TheSettings.ChangeUser == u"2") frmChangeUserSimple().ShowModal();
}

void frmORVAtouch::cmdOdjava_Click() {
    ui.txtUserFullName->clear();
    ui.cboID->setEditText({});
}

void frmORVAtouch::cmdTraka_Click() {
    mdiORVA::Window().Choose(u"mnuTrakaRacuna"_s);
}

void frmORVAtouch::cmdNoviArtikal_Click() {
    mdiORVA::Window().Choose(u"mnuPregledRacuna"_s);
}

void frmORVAtouch::cmdHelp_Click() {
    ShowHelp();
}

void frmORVAtouch::cmdLogOff_Click() {
    LogOff();
}

void frmORVAtouch::cmdOsvjezi_Click() {
    ui.clickTable->Clear();
    LoadTabCaptions(this);
    LoadClickTable(this);
}

void frmORVAtouch::Command2_Click(int index) {
    const QString code = ui.clickTable->Button(index)->Tag();
    if (code.isEmpty()) return;
    ShowAnew(code);
    if (ui.txtDescription->text().isEmpty()) {
        Refuse(tr("Product has meanwhile been deleted or does not exist."), {}, forms::Icon::None);
        ui.txtProdCode->clear();
        return;
    }
    ui.txtQuantity->setText(u"1"_s);
    ui.txtQuantity->setFocus();
    cmdAddItem_Click();
}
