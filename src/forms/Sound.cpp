#include "forms/Sound.h"

#include <QApplication>

namespace forms {

namespace {

bool isOn = true;
int rung = 0;

}  // namespace

void Beep() {
    if (!isOn) return;
    ++rung;
    QApplication::beep();
}

void SetSound(bool on) {
    isOn = on;
}

int BeepCount() {
    return rung;
}

}  // namespace forms
