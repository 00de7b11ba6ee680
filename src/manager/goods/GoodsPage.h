#pragma once

#include <memory>
#include <optional>

#include "manager/Page.h"
#include "manager/goods/GoodsWriting.h"
#include "ui_GoodsPage.h"
#include "upkeep/goods/GoodsImport.h"
#include "upkeep/goods/SheetFile.h"

namespace manager {

// Goods from a spreadsheet and to one: what a file would do is shown row by row before any of it is written.
class GoodsPage : public Page {
    Q_OBJECT

public:
    explicit GoodsPage(QWidget* parent);

    // A file as if it had been chosen.
    void LookAt(const QString& path);

    Ui::GoodsPage ui;

protected:
    void Form_Activate() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void cmdChoose_Click();
    void ReadAgain();
    void PreviewAgain();
    void cboShow_Choose();
    void ShowRow();
    void cmdWrite_Click();
    void cmdUndo_Click();
    void cmdExportGoods_Click();
    void cmdExportCustomers_Click();

    bool LacksCode() const;
    void Preview(const std::function<bool()>& goesOn);
    void ShowPreview();
    void ForgetPreview();
    void Export(const QString& title, const std::function<upkeep::Sheet()>& sheet);

    GoodsWriting writing_{*this};
    bool areChoicesChosen_ = false;  // to be shown or not, by hand
    QString path_;
    upkeep::GoodsSheet sheet_;
    std::shared_ptr<const upkeep::Preview> preview_;
    std::optional<upkeep::GoodsRules> rules_;  // of the last look
};

}  // namespace manager
