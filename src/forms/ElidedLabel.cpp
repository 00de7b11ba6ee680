#include "forms/ElidedLabel.h"

#include <QEvent>

namespace forms {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::ShowWhole(const QString& text) {
    whole_ = text;
    setToolTip(text);
    setAccessibleName(text);
    Elide();
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    Elide();
}

void ElidedLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Elide();
}

void ElidedLabel::Elide() {
    setText(fontMetrics().elidedText(whole_, Qt::ElideMiddle, contentsRect().width()));
}

}  // namespace forms
