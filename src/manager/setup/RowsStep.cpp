#include "manager/setup/RowsStep.h"

#include <QComboBox>
#include <QScopedValueRollback>

#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "forms/Program.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

// A password is as it was typed.
QString TextOf(const QWidget* box) {
    if (const auto* choice = qobject_cast<const QComboBox*>(box)) return choice->currentText();
    const auto* line = qobject_cast<const QLineEdit*>(box);
    return line->echoMode() == QLineEdit::Password ? line->text() : line->text().trimmed();
}

void Show(QWidget* box, const QString& text) {
    if (auto* choice = qobject_cast<QComboBox*>(box)) return choice->setCurrentIndex(choice->findText(text));
    qobject_cast<QLineEdit*>(box)->setText(text);
}

void Clear(QWidget* box) {
    if (auto* choice = qobject_cast<QComboBox*>(box)) return choice->setCurrentIndex(0);
    qobject_cast<QLineEdit*>(box)->clear();
}

QString Shown(const store::Field& field, const QString& format) {
    return format.isEmpty() ? field.TextOrEmpty() : values::Format(field.Get(), format);
}

}  // namespace

void RowsStep::Begin(const Facts& facts) {
    facts_ = facts;
    const auto guarded = [this](void (RowsStep::*handler)()) {
        return [this, handler] { forms::Run([&] { (this->*handler)(); }, window()->windowTitle()); };
    };
    connect(facts_.list, &forms::ListView::RowChosen, this, guarded(&RowsStep::Choose));
    connect(facts_.add, &QPushButton::clicked, this, guarded(&RowsStep::New));
    connect(facts_.remove, &QPushButton::clicked, this, guarded(&RowsStep::Remove));
}

QLineEdit* RowsStep::KeyBox() const {
    return qobject_cast<QLineEdit*>(facts_.boxes.first().box);
}

QStringList RowsStep::CellsOf(store::Recordset& row) const {
    QStringList cells;
    for (const Box& box : facts_.boxes.first(facts_.list->model()->columnCount()))
        cells << Shown(row[box.field], box.format);
    return cells;
}

std::pair<QString, QWidget*> RowsStep::Missing() const {
    for (const Box& box : facts_.boxes)
        if (!box.missing.isEmpty() && TextOf(box.box).isEmpty()) return {box.missing, box.box};
    return {};
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
    for (const Box& box : facts_.boxes) Clear(box.box);
    auto row = OpenRow(key);
    const bool isThere = !key.isNull() && !row.AtEOF();
    if (isThere)
        for (const Box& box : facts_.boxes) Show(box.box, Shown(row[box.field], box.format));
    KeyBox()->setReadOnly(isThere && !(facts_.isKeyFree && WhyItStays(row).isEmpty()));
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
    KeyBox()->setFocus();
}

void RowsStep::Write(store::Recordset& row) const {
    for (const Box& box : facts_.boxes)
        if (box.box != KeyBox() || !KeyBox()->isReadOnly()) row[box.field] = TextOf(box.box);
}

bool RowsStep::Refuse(const std::pair<QString, QWidget*>& fault) {
    forms::Inform(fault.first, window()->windowTitle());
    fault.second->setFocus();
    return false;
}

bool RowsStep::Store() {
    for (const auto& fault : {Missing(), Fault()})
        if (!fault.first.isEmpty()) return Refuse(fault);
    auto rows = isNew_ ? MainStore().OpenRecordset(facts_.query) : OpenRow(key_);
    // What kept the row from another key may have come since it was shown.
    if (!isNew_ && !KeyBox()->isReadOnly() && !rows.AtEOF() && TextOf(KeyBox()) != key_)
        if (const QString why = WhyItStays(rows); !why.isEmpty()) return Refuse({why, KeyBox()});
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
    const bool isProtected = !facts_.isProtected.isEmpty() && (row[u"Del"].IsNull() || row[u"Del"].YesNo());
    const QString why = isProtected ? facts_.isProtected : WhyItStays(row);
    if (!why.isEmpty()) return forms::Inform(why, window()->windowTitle());
    if (!forms::Ask(facts_.question.arg(CellsOf(row).value(1)), window()->windowTitle())) return;
    row.Delete();
    FillList({});
}

}  // namespace manager
