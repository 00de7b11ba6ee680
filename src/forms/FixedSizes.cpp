#include "forms/FixedSizes.h"

#include <QAbstractButton>
#include <QVariant>

#include "forms/ListView.h"
#include "forms/Theme.h"

namespace forms {

namespace {

// Kept with the widget, so that steps don't add up.
struct Designed {
    QSize smallest;
    QSize largest;
    QSize icon;
};

constexpr auto DesignedSizes = "designedSizes";

Designed SizesOf(QWidget& widget) {
    const QVariant known = widget.property(DesignedSizes);
    if (known.isValid()) return known.value<Designed>();
    const auto* button = qobject_cast<QAbstractButton*>(&widget);
    const Designed sizes{widget.minimumSize(), widget.maximumSize(), button ? button->iconSize() : QSize()};
    widget.setProperty(DesignedSizes, QVariant::fromValue(sizes));
    return sizes;
}

int ScaledLimit(int pixels) {
    return pixels >= QWIDGETSIZE_MAX ? pixels : Scaled(pixels);
}

QSize Scaled(QSize size) {
    return {ScaledLimit(size.width()), ScaledLimit(size.height())};
}

void ScaleOne(QWidget& widget) {
    const Designed sizes = SizesOf(widget);
    widget.setMaximumSize(Scaled(sizes.largest));
    widget.setMinimumSize(Scaled(sizes.smallest));
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) button->setIconSize(Scaled(sizes.icon));
    if (auto* list = qobject_cast<ListView*>(&widget)) list->LayOutColumns();
}

}  // namespace

void ScaleFixedSizes(QWidget& widget) {
    ScaleOne(widget);
    for (QWidget* child : widget.findChildren<QWidget*>()) ScaleOne(*child);
}

}  // namespace forms
