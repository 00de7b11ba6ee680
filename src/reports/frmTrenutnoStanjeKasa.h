#pragma once

#include <functional>

#include "core/PrintField.h"
#include "forms/Form.h"
#include "store/Recordset.h"
#include "ui_frmTrenutnoStanjeKasa.h"

// What the registers have taken since the last End Report, in four lists, and the End Report itself. With "2" in
// lblTipPregleda it shows the End Report whose number, date and time the caller wrote into the labels.
class frmTrenutnoStanjeKasa : public forms::Form {
    Q_OBJECT

public:
    frmTrenutnoStanjeKasa();

    // Goes to a tab, counted from 0, and loads its list.
    void ShowTab(int tab);
    // Runs the query that stands, and sums the amounts.
    void LoadAmountList();
    // The same, and sums the taxes too.
    void LoadInvoiceList();
    // The rows of the query that ran last.
    void FillList(store::Recordset rows);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;

private:
    void SSTab1_Click();
    void cmdZakljuci_Click();
    void cmdOsvjezi_Click();
    void cmdPrintPregled_Click();
    void cmdPrintPregledListe_Click();
    void cmdHelp_Click();
    void cmdClose_Click();

    bool IsReview() const;
    void ShowAsReview();
    QString SumOfColumn(int column) const;

    void PrintAndPreview(const std::function<void()>& printLists);
    void PrintHeading();
    void PrintListOfTab(int tab);
    void PrintRegisterList();
    void PrintCashierList();
    void PrintProductList();
    void PrintList(const QString& name, const QString& columnHead, const PrintFields& item);

    Ui::frmTrenutnoStanjeKasa ui;
    QString queryHead_;
    QString queryWhere_;
    QString queryGroup_;
    QString queryOrder_;
    // As it was at load: a report that another register makes meanwhile shares its number with ours.
    qint16 lastGrupni_ = 0;
    bool endReportDone_ = false;
    bool firstActivate_ = true;
};
