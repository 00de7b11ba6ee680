#pragma once

#include <QWidget>
#include <functional>

namespace manager {

// A step of the set-up: some boxes, filled from what holds now and stored on demand.
class SetupStep : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual void Fill() = 0;
    // Says in a box what cannot be stored, and gives false.
    virtual bool Store() = 0;

    // Asked before the step shows something else in its boxes; false when it must not.
    std::function<bool()> mayLeave;

Q_SIGNALS:
    void Filled();
    void ShopChanged();
};

}  // namespace manager
