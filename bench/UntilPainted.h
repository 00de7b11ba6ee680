#pragma once

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QEvent>

namespace bench {

// Lets the window do its work until this part of it has been painted.
class UntilPainted : public QObject {
public:
    explicit UntilPainted(QAbstractScrollArea& list) {
        list.viewport()->installEventFilter(this);
        while (!isPainted_) QCoreApplication::processEvents();
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        isPainted_ |= event->type() == QEvent::Paint;
        return false;
    }

private:
    bool isPainted_ = false;
};

}  // namespace bench
