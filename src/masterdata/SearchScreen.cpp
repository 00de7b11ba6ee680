#include "masterdata/SearchScreen.h"

void SearchScreen::SearchWith(SearchBlock* block, forms::ListView* list) {
    block_ = block;
    HighlightOnFocus({block->cboTemp}, forms::OnFocus::KeepCaret);
    EnterMovesOn({block->cboTemp, block->cboView});
    ControlKeys(block->cboTemp, {{Qt::Key_Down, [list] { list->setFocus(); }}});
    list->SetEmptyText(tr("Nothing is found."));
    OnChange(block->cboTemp, &SearchScreen::Search);
    On(block->Option1, &SearchScreen::Search);
    On(block->Option2, &SearchScreen::Search);
    OnChoice(block->cboView, &SearchScreen::cboView_Click);
    On(block->cmdRefresh, &SearchScreen::cmdRefresh_Click);
    block->cboTemp->setFocus();
}

void SearchScreen::SetSearchFields(const QList<SearchField>& fields) {
    fieldsAreSet_ = false;
    for (const auto& [entry, field] : fields) block_->cboView->addItem(entry, field);
    block_->cboView->setCurrentIndex(0);
    fieldsAreSet_ = true;
}

void SearchScreen::cboView_Click() {
    if (fieldsAreSet_) Search();
}

void SearchScreen::Search() {
    const QString condition = block_->Condition(block_->cboView->currentData().toString());
    ShowRows(base_ + condition);
    condition_ = condition;
}

void SearchScreen::cmdRefresh_Click() {
    block_->cboTemp->clear();
    ShowRows(base_);
}
