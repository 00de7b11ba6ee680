#pragma once

#include "manager/Page.h"
#include "ui_GoodsPage.h"
#include "upkeep/goods/GoodsPreview.h"

class QComboBox;

namespace manager {

// Goods from a spreadsheet's table, looked at row by row before anything is written, and out to one.
class GoodsPage : public Page {
    Q_OBJECT

public:
    explicit GoodsPage(QWidget* parent);

    Ui::GoodsPage ui;

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void cmdFile_Click();
    void cboForm_Choice();
    void Choice_Changed();
    void cboShow_Choice();
    void cmdWrite_Click();
    void cmdUndo_Click();
    void cmdExport_Click();
    void cmdExportCustomers_Click();

    // Reads the file in the form given, and shows what would be done with it.
    void Read(const upkeep::TableForm& form);
    void Preview(const upkeep::ImportChoice& choice);
    void ShowForm();
    void ShowChoice();
    void ShowRows();
    void FillUnitsAndTaxes();
    QList<std::pair<upkeep::GoodsField, QComboBox*>> ColumnBoxes() const;
    upkeep::ImportChoice Chosen() const;

    upkeep::TableText table_;
    upkeep::GoodsPreview preview_;
};

}  // namespace manager
