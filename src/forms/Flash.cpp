#include "forms/Flash.h"

#include <QVariant>
#include <QWidget>

#include "forms/Controls.h"

namespace forms {

namespace {

constexpr int Moment = 1000;  // milliseconds

}  // namespace

Flash::Flash(QWidget* control) : QObject(control), control_(control), own_(control->property("role").toString()) {
    over_.setSingleShot(true);
    over_.setInterval(Moment);
    over_.callOnTimeout(this, [this] { SetRole(control_, own_); });
}

void Flash::Show(const QString& role) {
    Hold(role);
    over_.start();
}

void Flash::Hold(const QString& role) {
    over_.stop();
    SetRole(control_, role);
}

}  // namespace forms
