#pragma once

#include "forms/Flash.h"
#include "forms/Form.h"
#include "forms/LongWork.h"
#include "forms/MsgBox.h"
#include "masterdata/products/LineBoxes.h"
#include "receipts/InvoiceText.h"
#include "sales/SalesLayout.h"
#include "store/Recordset.h"
#include "ui_frmORVAtouch.h"
#include "values/Money.h"

namespace store {
class Burst;
}

// Goods in this unit are counted, all others weighed or measured.
inline const QString PiecesUnit = QStringLiteral("pcs");

// The sales screen: the invoice from opening to posting. The invoice in progress lives in these controls alone; whether
// there is one is what cmdNew shows.
class frmORVAtouch : public forms::Form {
    Q_OBJECT
    Q_PROPERTY(int RacunOrNo MEMBER RacunOrNo)

public:
    frmORVAtouch();

    // Counter of the last receipt number; the settings dialog moves it by its name.
    qint32 RacunOrNo = 0;

    void cmdNew_Click();

protected:
    void Form_Load() override;
    bool Form_KeyDown(QKeyEvent& key) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    // The period and the numbers (frmORVAtouch.cpp).
    void ShowCustomer(bool visible);
    void FindPeriod();
    void NewPeriod(qint16 number);
    void StartSalesPeriod();
    void UpdateSalesPeriod();
    void FindNumbers();
    static qint32 Next(qint32 number);
    void OpenInvoice();
    void CloseInvoice();
    void EnableWork(bool enabled);
    void ShowOpen(bool isOpen);
    void cmdESCponisti_Click();
    void txtUserFullName_Change();
    void cmdPrijava_Click();
    void cmdOdjava_Click();
    void cmdTraka_Click();
    void cmdOsvjezi_Click();
    void cmdNoviArtikal_Click();
    void cmdLogOff_Click();
    void cmdHelp_Click();
    void Command2_Click(int index);

    // Item entry (frmORVAtouchItems.cpp).
    void txtProdCode_Change();
    void txtProdCode_LostFocus();
    void txtProdCode_Enter();
    void txtQuantity_Change();
    void txtQuantity_Enter();
    void txtDescription_Change();
    void cmdF2izaberi_Click();
    void Refuse(const QString& text, const QString& title, forms::Icon icon = forms::Icon::Information);
    void SetQuantity(const QString& text);
    void ShowAnew(const QString& code);
    void ToggleAddButton();
    void CheckProductFound();
    void LimitQuantity();
    void ShowAmount();
    void ShowTax();

    // The lines of the invoice (frmORVAtouchLines.cpp).
    void cmdAddItem_Click();
    void AddLine();
    void MergeInto(int row);
    void RecomputeInvoice();
    void ShowCount();
    void DeleteLine();
    void ChangeLineQuantity();

    // Posting (frmORVAtouchPosting.cpp).
    void PostInvoice();
    void RaiseRunningTotal();
    void StoreInvoice();
    values::Error MayBeStored(const values::Error& lost) const;
    void StoreLine(int row, forms::LongWork& wait);
    void StoreLinesAndPeriod(store::Burst& burst, forms::LongWork& wait);
    void WaitForStock(int row, forms::LongWork& wait, const values::Error& why) const;
    InvoiceText TakeInvoiceText() const;

    Ui::frmORVAtouch ui;
    SalesLayout layout_{ui};
    LineBoxes boxes_;
    forms::Flash* display_ = nullptr;
    bool isOpen_ = false;  // cmdNew posts the invoice; else it opens one

    qint32 RacunBroj_ = 0;
    qint16 SalesPeriodID_ = 0;
    quint8 PType_ = 0;
    QString CAmount_;
    QString CNumber_;
    QString Banko_;
    store::Recordset rsSalesDetails_;
    store::Recordset rsInvoices_;
    store::Recordset rsSales_;
    double LineAmount_ = 0;
    double TotalAmountValue_ = 0;
    double TaxTotalValue_ = 0;
};
