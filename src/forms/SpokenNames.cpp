#include "forms/SpokenNames.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCalendarWidget>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>

#include "forms/TextView.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

QString LabelIn(const QLayoutItem* item) {
    const auto* label = item ? qobject_cast<const QLabel*>(const_cast<QLayoutItem*>(item)->widget()) : nullptr;
    return label ? label->text().remove(u'&').trimmed() : QString();
}

// Left of it, or above.
QString LabelInGrid(const QGridLayout& grid, int index) {
    int row = 0, column = 0, rows = 0, columns = 0;
    grid.getItemPosition(index, &row, &column, &rows, &columns);
    const QString left = column > 0 ? LabelIn(grid.itemAtPosition(row, column - 1)) : QString();
    if (!left.isEmpty()) return left;
    return row > 0 ? LabelIn(grid.itemAtPosition(row - 1, column)) : QString();
}

// What stands before it; a hidden control stands nowhere.
QString LabelInRow(const QLayout& row, int index) {
    while (--index >= 0) {
        const QLayoutItem* item = row.itemAt(index);
        const QWidget* before = const_cast<QLayoutItem*>(item)->widget();
        if (!before || !before->isHidden()) return LabelIn(item);
    }
    return {};
}

QString LabelBeside(const QLayout& layout, QWidget* control) {
    const int index = layout.indexOf(control);
    if (index >= 0) {
        if (const auto* grid = qobject_cast<const QGridLayout*>(&layout)) return LabelInGrid(*grid, index);
        return LabelInRow(layout, index);
    }
    for (int i = 0; i < layout.count(); ++i)
        if (const QLayout* inner = layout.itemAt(i)->layout())
            if (const QString label = LabelBeside(*inner, control); !label.isEmpty()) return label;
    return {};
}

QString Placeholder(const QWidget& control) {
    if (const auto* box = qobject_cast<const QLineEdit*>(&control)) return box->placeholderText();
    if (const auto* box = qobject_cast<const QComboBox*>(&control)) return box->placeholderText();
    return {};
}

bool IsList(const QWidget& control) {
    return qobject_cast<const QAbstractItemView*>(&control) || qobject_cast<const TextView*>(&control) ||
           qobject_cast<const QTextEdit*>(&control) || qobject_cast<const QCalendarWidget*>(&control);
}

bool IsBox(const QWidget& control) {
    return qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QComboBox*>(&control) ||
           qobject_cast<const QAbstractSpinBox*>(&control);
}

QString NameOf(QWidget& control, const QWidget& form) {
    const QLayout* layout = control.parentWidget()->layout();
    QString name = layout ? LabelBeside(*layout, &control) : QString();
    if (name.isEmpty()) name = Placeholder(control);
    if (name.isEmpty() && IsList(control)) name = form.windowTitle();
    return name;
}

}  // namespace

void NameForReaders(QWidget& form) {
    for (QWidget* control : form.findChildren<QWidget*>())
        if (control->accessibleName().isEmpty() && (IsBox(*control) || IsList(*control)))
            control->setAccessibleName(NameOf(*control, form));
}

}  // namespace forms
