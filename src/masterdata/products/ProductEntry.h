#pragma once

#include "masterdata/EntryForm.h"
#include "store/Recordset.h"
#include "ui_ProductEntry.h"

// The fields of one product: the base of the screens that add and change one. Prices are taken as they are typed; none
// of them follows from another or from the tax.
class ProductEntry : public EntryForm {
    Q_OBJECT

protected:
    struct Words {
        QString name;  // of the form
        QString title;
        QString save;    // name of the button that saves
        QString second;  // name and caption of the button beside it
        QString secondCaption;
        QString labelEnd;  // behind the captions of price, quantity and tax
        QString pictureTitle;
        QString allPictures;
        QString pictureMissing;
    };

    explicit ProductEntry(const Words& words);

    void cmdDelPic_Click();

    void FillTaxList();
    void FillUnitList();
    // The chosen tax; there is no row when it is not in its table.
    virtual void ShowTax(store::Recordset& tax);
    // Brings the product into the store, and what follows when that went well.
    virtual void StoreProduct() = 0;
    virtual void ProductStored() = 0;

    // Error 481 when the file holds no picture.
    void ShowPicture(const QString& path);

    QList<QLineEdit*> Prices() const;
    // A price as it is stored, with two decimals; what is no number stays as it is.
    static QString PriceIn(const QLineEdit* box);
    // Null when there is no row.
    static values::Value ValueOf(store::Recordset& row, QStringView field);

    Ui::ProductEntry ui;

private:
    void txtPrice_LostFocus();
    void txtUnit_Click();
    void cboTax_Click();
    void cmdSelect_Click();
    void cmdSave_Click();

    const Words words_;
};
