// Posting: the invoice goes to the store, the goods off the stock, the paper out, and the screen clears.
// Each row is a commit of its own; what is written stays written when a later step fails.

#include "core/Session.h"
#include "core/Settings.h"
#include "core/dbModule.h"
#include "core/mdiORVA.h"
#include "receipts/InvoiceLists.h"
#include "receipts/PrintInvoice.h"
#include "sales/Stock.h"
#include "sales/frmMSGinvoice.h"
#include "sales/frmORVAtouch.h"
#include "values/Clock.h"
#include "values/Format.h"
#include "values/Numbers.h"

using values::CMoney;

void frmORVAtouch::PostInvoice() {
    RacunBroj_ = Next(RacunBroj_);
    RacunOrNo = Next(RacunOrNo);
    RaiseRunningTotal();
    {
        forms::LongWork wait(WaitsForMainStore(), this);
        const store::Patience patience(MainStore(), [&wait] { return [&wait] { return wait.GoesOn(); }; });
        // All of it is on the disk before the paper moves.
        store::Burst burst(MainStore());
        StoreInvoice();
        StoreLinesAndPeriod(burst, wait);
    }
    PrintInvoice(TakeInvoiceText());
    ui.txtPosDisplay->clear();
    if (TheSettings.Kusur) {
        CallerForm = this;
        frmMSGinvoice change;
        change.ShowModal();
    }
    ui.lv1->Clear();
    for (QLineEdit* box : {ui.txtTotalAmount, ui.txtInvoiceNumber, ui.txtORNumber, ui.txtTaxTotal, ui.txtKupac,
                           ui.txtPosDisplay, ui.txtIB})
        box->clear();
    ShowCount();
    CloseInvoice();
    if (TheSettings.NoviRacunAutomatski) cmdNew_Click();
}

void frmORVAtouch::RaiseRunningTotal() {
    mdiORVA& main = mdiORVA::Window();
    values::Money total = CMoney(ui.txtTotalAmount->text());
    if (!main.RunningTotal().isEmpty()) total = CMoney(main.RunningTotal()) + total;
    main.SetRunningTotal(values::Format(total, u"###,###,##0.00"));
}

void frmORVAtouch::StoreInvoice() {
    rsInvoices_.AddNew();
    rsInvoices_[u"Kas"] = 0;  // whatever the register's number: the reports see one register
    rsInvoices_[u"SalesID"] = SalesPeriodID_;
    rsInvoices_[u"InvoiceID"] = ui.txtInvoiceNumber->text();
    rsInvoices_[u"OrNo"] = ui.txtORNumber->text();
    rsInvoices_[u"CashierID"] = ui.cboID->currentText();
    rsInvoices_[u"CashierName"] = ui.txtUserFullName->text();
    rsInvoices_[u"PaymentType"] = PType_;
    rsInvoices_[u"DateSold"] = values::Today();
    rsInvoices_[u"TimeSold"] = values::TimeNow();
    rsInvoices_[u"CashAmount"] = CMoney(ui.txtTotalAmount->text());
    rsInvoices_[u"TaxTotal"] = CMoney(ui.txtTaxTotal->text());
    rsInvoices_[u"CheckAmount"] = CMoney(CAmount_);
    rsInvoices_[u"CheckNo"] = CMoney(CNumber_);
    rsInvoices_[u"Bank"] = Banko_;
    rsInvoices_[u"Kupac"] = ui.txtKupac->text();
    rsInvoices_[u"IB"] = ui.txtIB->text();
    try {
        rsInvoices_.Update();
    } catch (const store::ServerLost& error) {
        if (error.MayHaveStored()) throw MayBeStored(error);
        throw;
    }
}

// From here on a failure leaves something behind, which the cashier must know before pressing F5 again.
void frmORVAtouch::StoreLinesAndPeriod(store::Burst& burst, forms::LongWork& wait) {
    const int lines = ui.lv1->Count();
    int stored = 0;
    try {
        for (; stored < lines; ++stored) StoreLine(stored, wait);
        rsSales_.Edit();
        UpdateSalesPeriod();
        rsSales_.Update();
        burst.End();
    } catch (const store::FilesLost&) {
        throw;
    } catch (const store::ServerLost& error) {
        throw MayBeStored(error);
    } catch (const values::Error& error) {
        // What is stored until here is to stay, or else it must not be said.
        try {
            burst.End();
        } catch (const store::ServerLost& lost) {
            throw MayBeStored(lost);
        } catch (const values::Error&) {
            // It is told what came first.
        }
        const QString stays =
            tr("Invoice %1 is stored with %2 of its %3 lines. These stay, and so does the stock taken off.")
                .arg(ui.txtInvoiceNumber->text(), QString::number(stored), QString::number(lines));
        throw values::Error(error.Number(), error.Description() + u'\n' + stays);
    }
}

values::Error frmORVAtouch::MayBeStored(const values::Error& lost) const {
    const QString mayBe =
        tr("Invoice %1 may be stored whole, in part or not at all: look it up before you post it again.")
            .arg(ui.txtInvoiceNumber->text());
    return {lost.Number(), lost.Description() + u'\n' + mayBe};
}

void frmORVAtouch::StoreLine(int row, forms::LongWork& wait) {
    const InvoiceText::Item line = ItemOf(*ui.lv1, row);
    rsSalesDetails_.AddNew();
    rsSalesDetails_[u"Kas"] = 0;
    rsSalesDetails_[u"InvoiceID"] = ui.txtInvoiceNumber->text();
    rsSalesDetails_[u"ProdCode"] = line.code;
    rsSalesDetails_[u"ProdDescription"] = line.description;
    rsSalesDetails_[u"UnitPrice"] = CMoney(line.unitPrice);
    rsSalesDetails_[u"QtySold"] = CMoney(line.quantity);
    TakeOffStock(line.code, CMoney(line.quantity), [&](const values::Error& why) { WaitForStock(row, wait, why); });
    rsSalesDetails_[u"Amount"] = CMoney(line.amount);
    rsSalesDetails_[u"TaxPercent"] = CMoney(line.taxPercent);
    rsSalesDetails_[u"TaxAmount"] = CMoney(line.taxAmount);
    rsSalesDetails_[u"Unit"] = line.unit;
    rsSalesDetails_[u"TaxID"] = line.taxID;
    rsSalesDetails_.Update();
}

// A sale must not lose its stock for a lock that goes away, nor hold the cashier for an error that stays.
void frmORVAtouch::WaitForStock(int row, forms::LongWork& wait, const values::Error& why) const {
    const QString goods = ui.lv1->Text(row, InvoiceText::Item::Description);
    if (!wait.GoesOn(tr("The stock of %1 can't be written yet. %2").arg(goods, why.Description()))) throw why;
}
