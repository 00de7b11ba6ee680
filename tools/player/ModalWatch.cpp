#include "player/ModalWatch.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include "forms/Form.h"

namespace drivers {

namespace {

constexpr int LookEvery = 2;         // milliseconds
constexpr int Patience = 10 * 1000;  // milliseconds

}  // namespace

ModalWatch::ModalWatch(Attend attend, Tell nobodyAttends)
    : attend_(std::move(attend)), nobodyAttends_(std::move(nobodyAttends)) {
    QTimer::singleShot(LookEvery, &timers_, [this] { Look(); });
}

void ModalWatch::Look() {
    // Armed first: an answer may run a loop of its own, in which further answers are due.
    QTimer::singleShot(LookEvery, &timers_, [this] { Look(); });
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != seen_ || !modal) {
        // Once around the loop first, so that the window is up and active.
        seen_ = modal;
        waiting_.start();
        return;
    }
    if (inWork_.contains(modal)) return;
    inWork_.append(modal);
    const bool isAttended = attend_(*modal);
    inWork_.removeLast();
    if (isAttended || !seen_ || waiting_.elapsed() < Patience) return;
    nobodyAttends_(*seen_);
    CloseByForce(*seen_);
}

void CloseByForce(QWidget& modal) {
    if (auto* dialog = qobject_cast<QDialog*>(&modal)) return dialog->reject();
    auto* form = qobject_cast<forms::Form*>(&modal);
    if (!form || !form->Unload()) QCoreApplication::exit(1);
}

}  // namespace drivers
