#pragma once

#include "masterdata/SearchScreen.h"
#include "store/Listing.h"
#include "ui_frmViewer.h"

// Finds a product for another screen: the code of the chosen one goes into the box txtProdCode of CallerForm.
class frmViewer : public SearchScreen {
    Q_OBJECT

public:
    frmViewer();

protected:
    void Form_Load() override;
    void ShowRows(const QString& query) override;
    void cmdRefresh_Click() override;

private:
    void lv1_Enter();
    void Pick();

    void FillViewerGrid(store::Listing products);

    Ui::frmViewer ui;
};
