#include "manager/BoxesPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

#include "forms/MsgBox.h"

namespace manager {

QStringList BoxesOf(const QWidget& part) {
    QStringList boxes;
    for (const auto* box : part.findChildren<QLineEdit*>()) boxes << box->text();
    for (const auto* box : part.findChildren<QComboBox*>()) boxes << box->currentText();
    for (const auto* box : part.findChildren<QSpinBox*>()) boxes << QString::number(box->value());
    for (const auto* box : part.findChildren<QCheckBox*>())
        boxes << QString::number(static_cast<int>(box->isChecked()));
    return boxes;
}

void BoxesPage::FillBoxes() {
    Fill();
    filled_ = BoxesOf(*this);
}

void BoxesPage::StoreBoxes() {
    Store();
    filled_ = BoxesOf(*this);
}

// What was not to be saved is gone, so that nobody is asked for it again.
bool BoxesPage::MayLeave() {
    if (BoxesOf(*this) == filled_) return true;
    forms::Ask(tr("Save what was changed?"), Caption()) ? StoreBoxes() : FillBoxes();
    return true;
}

}  // namespace manager
