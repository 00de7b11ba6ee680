#pragma once

#include <QWidget>

#include "ui_ImportChoices.h"
#include "upkeep/goods/GoodsImport.h"

namespace manager {

// How a table of goods is read, as it was guessed and as its reader corrects it, and what is to be done with it.
class ImportChoices : public QWidget {
    Q_OBJECT

public:
    explicit ImportChoices(QWidget* parent);

    // Forgets what was corrected.
    void BeginAnew();
    // What the shop has for goods whose row says none; what was chosen stays.
    void OfferDefaults(const upkeep::GoodsRules& rules);
    // What was guessed or taken.
    void Show(const upkeep::GoodsSheet& sheet);

    const upkeep::SheetWish& Wish() const { return wish_; }
    upkeep::ImportOptions Options() const;

    Ui::ImportChoices ui;

Q_SIGNALS:
    // The file is to be read anew.
    void FormChosen();
    // The same table, to be looked at anew.
    void OptionChosen();

private:
    QComboBox* BoxOf(upkeep::SheetField field) const;
    void ChooseForm();
    void ChooseField(upkeep::SheetField field);

    upkeep::SheetWish wish_;
};

}  // namespace manager
