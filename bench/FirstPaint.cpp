#include "bench/FirstPaint.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <cstdio>

namespace bench {

namespace {

class PaintWatch : public QObject {
public:
    PaintWatch(const QString& window, QObject* parent) : QObject(parent), window_(window) {}

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() != QEvent::Paint || receiver->objectName() != window_) return false;
        qApp->removeEventFilter(this);
        // Once more through the loop: then all of the window is painted and handed to the screen.
        QTimer::singleShot(0, qApp, [] {
            std::puts("painted");
            std::fflush(stdout);
            QApplication::exit();
        });
        return false;
    }

private:
    QString window_;
};

}  // namespace

void QuitWhenPainted(const QString& window) {
    qApp->installEventFilter(new PaintWatch(window, qApp));
}

}  // namespace bench
