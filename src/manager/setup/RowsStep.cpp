#include "manager/setup/RowsStep.h"

#include <QScopedValueRollback>

#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "forms/Program.h"

using namespace Qt::StringLiterals;

namespace manager {

void RowsStep::Begin(const Facts& facts) {
    facts_ = facts;
    const auto guarded = [this](void (RowsStep::*handler)()) {
        return [this, handler] { forms::Run([&] { (this->*handler)(); }, window()->windowTitle()); };
    };
    connect(facts_.list, &forms::ListView::RowChosen, this, guarded(&RowsStep::Choose));
    connect(facts_.add, &QPushButton::clicked, this, guarded(&RowsStep::New));
    connect(facts_.remove, &QPushButton::clicked, this, guarded(&RowsStep::Remove));
}

store::Recordset RowsStep::OpenRow(const QString& key) const {
    return MainStore().OpenRecordset(facts_.rowQuery.arg(Quoted(key)));
}

void RowsStep::Fill() {
    FillList(key_);
}

void RowsStep::FillList(const QString& key) {
    const QScopedValueRollback<bool> filling(isFilling_, true);
    facts_.list->Clear();
    for (auto& row : MainStore().OpenRecordset(facts_.query)) facts_.list->Add(CellsOf(row));
    Select(isNew_ ? -1 : std::max(0, facts_.list->Find(key)));
    ShowRow(facts_.list->Selected() < 0 ? QString() : facts_.list->SelectedText());
}

void RowsStep::Select(int row) {
    const QScopedValueRollback<bool> filling(isFilling_, true);
    facts_.list->Select(row < facts_.list->Count() ? row : -1);
}

void RowsStep::ShowRow(const QString& key) {
    key_ = key;
    isNew_ = key.isNull();
    facts_.remove->setEnabled(!key.isNull());
    Clear();
    if (auto row = OpenRow(key); !key.isNull() && !row.AtEOF()) Show(row);
    Q_EMIT Filled();
}

void RowsStep::Choose() {
    if (isFilling_) return;
    const int row = facts_.list->Selected();
    const QString key = row < 0 ? QString() : facts_.list->Text(row);
    if (!mayLeave()) return Select(isNew_ ? -1 : facts_.list->Find(key_));
    Select(key.isNull() ? -1 : facts_.list->Find(key));
    ShowRow(key);
}

void RowsStep::New() {
    facts_.list->Select(-1);
    Choose();
    facts_.first->setFocus();
}

bool RowsStep::Store() {
    if (const auto [fault, box] = Fault(); !fault.isEmpty()) {
        forms::Inform(fault, window()->windowTitle());
        box->setFocus();
        return false;
    }
    auto rows = isNew_ ? MainStore().OpenRecordset(facts_.query) : OpenRow(key_);
    try {
        isNew_ ? rows.AddNew() : rows.Edit();
        Write(rows);
        rows.Update();
    } catch (const store::StoreError& error) {
        if (error.Number() != store::DuplicateKey) throw;
        forms::Inform(facts_.duplicate, window()->windowTitle());
        return false;
    }
    rows.SetBookmark(rows.LastModified());
    isNew_ = false;
    FillList(CellsOf(rows).first());
    return true;
}

void RowsStep::Remove() {
    const QString key = facts_.list->SelectedText();
    auto row = OpenRow(key);
    if (row.AtEOF()) return Fill();
    const bool isProtected = row[u"Del"].IsNull() || row[u"Del"].YesNo();
    const QString why = isProtected ? facts_.isProtected : WhyItStays(row);
    if (!why.isEmpty()) return forms::Inform(why, window()->windowTitle());
    if (!forms::Ask(facts_.question.arg(CellsOf(row).value(1)), window()->windowTitle())) return;
    row.Delete();
    FillList({});
}

}  // namespace manager
