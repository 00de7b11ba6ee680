#include "masterdata/SearchScreen.h"

void SearchScreen::SearchWith(SearchBlock* block, forms::ListView* list) {
    block_ = block;
    HighlightOnFocus({block->cboTemp}, forms::OnFocus::KeepCaret);
    EnterMovesOn({block->cboTemp, block->cboView});
    ControlKeys(block->cboTemp, {{Qt::Key_Down, [list] { list->setFocus(); }}});
    OnChange(block->cboTemp, &SearchScreen::Search);
    On(block->Option1, &SearchScreen::Search);
    On(block->Option2, &SearchScreen::Search);
    OnChoice(block->cboView, &SearchScreen::cboView_Click);
    On(block->cmdRefresh, &SearchScreen::cmdRefresh_Click);
    block->cboTemp->setFocus();
}

void SearchScreen::SetSearchFields(const QStringList& entries) {
    fieldsAreSet_ = false;
    block_->cboView->addItems(entries);
    block_->cboView->setCurrentIndex(0);
    fieldsAreSet_ = true;
}

void SearchScreen::cboView_Click() {
    if (fieldsAreSet_) Search();
}

void SearchScreen::Search() {
    const QString condition = block_->Condition(SearchedField(block_->cboView->currentText()));
    ShowRows(base_ + condition);
    condition_ = condition;
}

void SearchScreen::cmdRefresh_Click() {
    block_->cboTemp->clear();
    ShowRows(base_);
}
