#include "manager/ManagerWindow.h"

#include <QDir>
#include <QShortcut>
#include <algorithm>

#include "core/Installation.h"
#include "forms/Theme.h"
#include "manager/backup/BackupWords.h"
#include "output/Folder.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

constexpr int LowestName = 32;  // pixels that a finger still hits

}  // namespace

ManagerWindow::ManagerWindow(std::vector<PageEntry> pages) : entries_(std::move(pages)) {
    ui.setupUi(this);
    setWindowFlags(Qt::Window);
    ui.lstPages->SetColumns({{u""_s, Qt::AlignLeft, -1}});
    ui.lstPages->KeepRowsInView(forms::Scaled(LowestName));
    connect(ui.lstPages, &forms::ListView::RowChosen, this, Guarded(&ManagerWindow::lstPages_Chosen));
    for (const auto& [key, step] : {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}})
        connect(new QShortcut(QKeyCombination(Qt::ControlModifier, key), this), &QShortcut::activated, this,
                [this, step = step] {
                    ui.lstPages->Select(qBound(0, ui.lstPages->Selected() + step, ui.lstPages->Count() - 1));
                });
    connect(new QShortcut(QKeySequence::Quit, this), &QShortcut::activated, this, &QWidget::close);
}

void ManagerWindow::Form_Load() {
    for (const PageEntry& entry : entries_) ui.lstPages->Add({entry.name});
    ui.lstPages->Select(0);
    TellOfShop();
}

void ManagerWindow::lstPages_Chosen() {
    if (const int chosen = ui.lstPages->Selected(); chosen >= 0) BringUp(static_cast<size_t>(chosen));
}

void ManagerWindow::BringUp(size_t number) {
    Page*& page = pages_[number];
    if (QWidget* shown = ui.stkPages->currentWidget(); shown != page && !MayLeavePage())
        return ui.lstPages->Select(static_cast<int>(std::ranges::find(pages_, shown) - pages_.begin()));
    if (page == nullptr) page = Made(number);
    ui.lblPage->setText(page->Name());
    ui.stkPages->setCurrentWidget(page);
}

bool ManagerWindow::MayLeavePage() const {
    auto* shown = static_cast<Page*>(ui.stkPages->currentWidget());
    return shown == nullptr || shown->MayLeave();
}

// One that can't be shown is not there, and is tried again the next time.
Page* ManagerWindow::Made(size_t number) {
    std::unique_ptr<Page> page(entries_[number].make(ui.stkPages));
    connect(page.get(), &Page::ShopChanged, this, Guarded(&ManagerWindow::TellOfShop));
    connect(page.get(), &Page::ShopGoes, this, [this, made = page.get()](bool* goes) { DropOthers(made, goes); });
    page->Load();
    ui.stkPages->addWidget(page.get());
    return page.release();
}

void ManagerWindow::ShowPage(const QString& className) {
    for (size_t number = 0; number < entries_.size(); ++number)
        if (entries_[number].className == className) ui.lstPages->Select(static_cast<int>(number));
}

void ManagerWindow::BeginIn(const QString& className) {
    ShowPage(className);
    ui.stkPages->currentWidget()->setFocus();
}

// A page that is in the middle of something may want to stay.
bool ManagerWindow::Form_Unload() {
    if (!MayLeavePage()) return false;
    for (Page* page : pages_)
        if (page != nullptr && !page->Unload()) return false;
    return true;
}

// They are made anew when they are chosen.
void ManagerWindow::DropOthers(const Page* page, bool* goes) {
    for (Page*& other : pages_) {
        if (other == nullptr || other == page) continue;
        if (!other->Unload()) {
            *goes = false;
            return;
        }
        delete std::exchange(other, nullptr);
    }
}

void ManagerWindow::TellOfShop() {
    ui.lblStatus->ShowWhole(tr("%1   –   %2   –   %3")
                                .arg(TheInstallation.heading.NazivFirme, output::ProgramFolder(), LastBackupInWords()));
}

}  // namespace manager
