#pragma once

#include <QCheckBox>

#include "values/Numbers.h"

// Check boxes and the text columns that hold their value.

// The box's value as a text: "0" cleared, "1" ticked, "2" in its third state.
inline QString CheckText(const QCheckBox& box) {
    switch (box.checkState()) {
        case Qt::Unchecked:
            return QStringLiteral("0");
        case Qt::PartiallyChecked:
            return QStringLiteral("2");
        case Qt::Checked:
            break;
    }
    return QStringLiteral("1");
}

// A text that means neither yes nor no counts as no: this is the screen to put it right.
inline bool ReadsAsTrue(const QString& text) {
    if (values::IsNumeric(text)) return values::CDouble(text) != 0;
    return text.compare(u"True", Qt::CaseInsensitive) == 0;
}
