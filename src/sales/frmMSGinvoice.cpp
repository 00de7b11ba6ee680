#include "sales/frmMSGinvoice.h"

#include "core/Session.h"
#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "forms/MsgBox.h"
#include "values/CashSums.h"
#include "values/Format.h"
#include "values/Numbers.h"

using values::CMoney;
using values::Format;

frmMSGinvoice::frmMSGinvoice() {
    ui.setupUi(this);
    FunctionKeys({{Qt::Key_Escape, ui.cmdOK}, {Qt::Key_F12, ui.cmdOK}});
    HighlightOnFocus({ui.txtCash});
    ShrinkFigures({ui.txtTotal, ui.txtChange});
    NumericKeys({ui.txtCash});
    KeypadSpares({ui.txtTotal, ui.txtChange, ui.cmdOK});
    KeypadOffers(ui.txtCash, [this] { return LikelyCash(); });
    ControlKeys(ui.txtCash, {{Qt::Key_Return, Guarded(&frmMSGinvoice::txtCash_Enter)}});
    On(ui.cmdOK, &frmMSGinvoice::cmdOK_Click);
}

void frmMSGinvoice::Form_Load() {
    ui.txtTotal->setText(forms::TextOf(forms::Control(CallerForm, u"txtTotalAmount")));
}

void frmMSGinvoice::txtCash_Enter() {
    ui.txtCash->setText(Format(ui.txtCash->text(), u"0.00"));
    if (!values::IsNumeric(ui.txtCash->text())) return;
    ui.txtChange->setText(Format(CMoney(ui.txtCash->text()) - CMoney(ui.txtTotal->text()), u"0.00"));
    if (CMoney(ui.txtChange->text()) >= values::Money()) return forms::SendTab(ui.txtCash);
    forms::Inform(tr("The amount is less than the invoice amount."), mdiORVA::Window().Caption());
    ui.txtCash->setFocus();
    forms::SelectAll(ui.txtCash);
    ui.txtChange->clear();
}

QStringList frmMSGinvoice::LikelyCash() const {
    if (!values::IsNumeric(ui.txtTotal->text())) return {};
    const values::Money total = CMoney(ui.txtTotal->text());
    QStringList texts;
    for (const values::Money sum : values::CashSums(total)) texts << Format(sum, sum == total ? u"0.00" : u"0");
    return texts;
}

void frmMSGinvoice::cmdOK_Click() {
    Unload();
}
