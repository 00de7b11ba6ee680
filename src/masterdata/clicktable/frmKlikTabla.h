#pragma once

#include "masterdata/SearchScreen.h"
#include "store/Listing.h"
#include "ui_frmKlikTabla.h"

// Sets up the click table: places products on its buttons, by hand or all at once, and names its tabs. Each change goes
// to the store at once; the tills show it from their next refresh on.
class frmKlikTabla : public SearchScreen {
    Q_OBJECT

public:
    frmKlikTabla();

    // Shows the screen beside what is open; one that is open already comes to the front.
    static void Open();

protected:
    void Form_Load() override;
    void ShowRows(const QString& query) override;

private:
    void lv1_Click();
    void cmdKarticeKlikTable_Click();
    void SSTab1_Click();
    void Command2_MouseUp(int index, Qt::MouseButton button);
    void cmdAutomatic_Click();
    void cmdOsvjezi_Click();

    void FillClickTableList(store::Listing products);
    void LoadTable();
    void PlaceSelected(int index);
    void TakeOff(int index);
    void PlaceOnButton(int tab);
    void ClearOldButton();
    void ForgetSelected();
    void AutoPlaceProducts();

    Ui::frmKlikTabla ui;
    QString query_;  // of the products that are listed
    // What waits to be placed; the code is empty when nothing does.
    QString selectedCode_;
    QString selectedName_;
    QString selectedPrice_;
};
