#pragma once

#include "masterdata/products/LineBoxes.h"
#include "store/Recordset.h"
#include "support/OfficeForm.h"
#include "ui_frmSastav.h"

// The recipe of the composite product that frmEditProduct shows: which products it is made of, and how much of each
// goes into one unit. The list is a working copy; a save puts it in the place of the stored recipe.
class frmSastav : public OfficeForm {
    Q_OBJECT

public:
    frmSastav();

protected:
    void Form_Load() override;

private:
    void txtProdCode_Change();
    void CheckComponentCode();
    void txtQuantity_Change();
    void txtQuantity_Enter();
    void cmdAddItem_Click();
    void cmdF2izaberi_Click();
    void EditCompositionItem();
    void RemoveCompositionItem();
    void cmdSave_Click();
    void cmdDelete_Click();

    void LoadComposition();
    void DeleteCompositionRows();
    void StoreComposition();
    void SetOne();
    void UpdateAddButton();
    // A list with rows has one selected, so that its keys have something to act on.
    void KeepARowSelected();

    Ui::frmSastav ui;
    LineBoxes boxes_;
    QString code_;  // of the composite
    store::Recordset rsComposition_;
};
