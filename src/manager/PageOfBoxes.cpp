#include "manager/PageOfBoxes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

#include "forms/MsgBox.h"

namespace manager {

namespace {

QStringList BoxesOf(const QWidget& part) {
    QStringList boxes;
    for (const auto* box : part.findChildren<QLineEdit*>()) boxes << box->text();
    for (const auto* box : part.findChildren<QComboBox*>()) boxes << box->currentText();
    for (const auto* box : part.findChildren<QSpinBox*>()) boxes << QString::number(box->value());
    for (const auto* box : part.findChildren<QCheckBox*>())
        boxes << QString::number(static_cast<int>(box->isChecked()));
    return boxes;
}

}  // namespace

void PageOfBoxes::NoteBoxes() {
    stored_ = BoxesOf(Part());
}

bool PageOfBoxes::IsChanged() const {
    return stored_ != BoxesOf(Part());
}

void PageOfBoxes::FillBoxes() {
    Fill();
    NoteBoxes();
}

bool PageOfBoxes::StoreBoxes() {
    if (!Store()) return false;
    NoteBoxes();
    return true;
}

// What was not to be saved is gone, so that nobody is asked for it again.
bool PageOfBoxes::MayLeave() {
    if (!IsChanged()) return true;
    if (forms::Ask(tr("Save what was changed?"), Caption())) return StoreBoxes();
    FillBoxes();
    return true;
}

}  // namespace manager
