#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

namespace drivers {

// Looks after what comes up modally, within its own loop: a box, a form or a dialog is handed over as soon as it is up
// and active, again and again until somebody attends to it, but not while he does. What nobody attends to for ten
// seconds is told and closed.
class ModalWatch {
public:
    // True when this window was attended to.
    using Attend = std::function<bool(QWidget& modal)>;
    using Tell = std::function<void(const QWidget& modal)>;

    ModalWatch(Attend attend, Tell nobodyAttends);

private:
    void Look();

    const Attend attend_;
    const Tell nobodyAttends_;
    QPointer<QWidget> seen_;
    QList<QPointer<QWidget>> inWork_;
    QElapsedTimer waiting_;
    QObject timers_;
};

// Rejects a dialog and unloads a form.
void CloseByForce(QWidget& modal);

}  // namespace drivers
