#pragma once

#include "masterdata/SearchList.h"
#include "store/Listing.h"
#include "ui_frmArtikli.h"

// All products: search, new, edit, delete. In the choosing mode it gives the code of a product to its caller instead.
class frmArtikli : public SearchList {
    Q_OBJECT

public:
    frmArtikli();

    // Opens the choosing mode for CallerForm, a form with a box txtProdCode, without waiting for the choice.
    static void Choose();
    // Shows the plain list until it is closed.
    static void Keep();

protected:
    void Form_Load() override;
    bool Form_Unload() override;
    void ShowRows(const QString& query) override;
    void cmdNew_Click() override;
    void cmdUpdate_Click() override;
    void cmdDelete_Click() override;

private:
    void Activate();

    void FillProductGrid(store::Listing products);

    Ui::frmArtikli ui;
    bool isChoosing_ = false;
};
