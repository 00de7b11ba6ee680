#pragma once

#include "manager/Pages.h"
#include "ui_ManagerWindow.h"

namespace manager {

// The window of the owner's program: the names of its pages, the one that was chosen, and a line about the shop.
class ManagerWindow : public forms::Form {
    Q_OBJECT

public:
    explicit ManagerWindow(std::vector<PageEntry> pages);

    // By the name of its class.
    void ShowPage(const QString& className);
    // With the focus where its work begins.
    void BeginIn(const QString& className);

    // Named as the widgets are, for those who work the program from outside.
    Ui::ManagerWindow ui;

protected:
    void Form_Load() override;
    bool Form_Unload() override;

private:
    void lstPages_Chosen();
    void BringUp(size_t number);
    bool MayLeavePage() const;
    Page* Made(size_t number);
    void TellOfShop();
    void DropOthers(const Page* page, bool* goes);

    const std::vector<PageEntry> entries_;
    std::vector<Page*> pages_{entries_.size()};
};

}  // namespace manager
