#include "forms/Dimmed.h"

#include <QEvent>
#include <QPainter>

#include "forms/Tokens.h"

namespace forms {

namespace {

constexpr int Darkness = 90;  // of 255

class Veil : public QWidget {
public:
    explicit Veil(QWidget* window) : QWidget(window) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(window->rect());
        raise();
        show();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QColor shade = TheTokens().Night;
        shade.setAlpha(Darkness);
        QPainter(this).fillRect(rect(), shade);
    }
};

}  // namespace

Dimmed::Dimmed(QWidget* window) {
    if (!window || !window->isVisible()) return;
    veil_ = new Veil(window);
    window->installEventFilter(this);
}

Dimmed::~Dimmed() {
    delete veil_;
}

bool Dimmed::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && veil_) veil_->setGeometry(veil_->parentWidget()->rect());
    return QObject::eventFilter(watched, event);
}

}  // namespace forms
