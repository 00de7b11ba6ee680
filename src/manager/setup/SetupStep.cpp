#include "manager/setup/SetupStep.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

namespace manager {

QStringList SetupStep::Boxes() const {
    QStringList boxes;
    for (const auto* box : findChildren<QLineEdit*>()) boxes << box->text();
    for (const auto* box : findChildren<QComboBox*>()) boxes << box->currentText();
    for (const auto* box : findChildren<QSpinBox*>()) boxes << QString::number(box->value());
    for (const auto* box : findChildren<QCheckBox*>()) boxes << QString::number(static_cast<int>(box->isChecked()));
    return boxes;
}

}  // namespace manager
