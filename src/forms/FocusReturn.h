#pragma once

#include <QPointer>
#include <QWidget>

namespace forms {

// Remembers which window and control were in front, and brings them back after something modal has closed: not every
// platform does so by itself.
class FocusReturn {
public:
    FocusReturn();
    // The control is left alone when a handler has given the focus to another one of its window meanwhile.
    void GiveBack() const;

    // How many there have been so far, which tells whether something modal came up meanwhile.
    static int Count();

private:
    QPointer<QWidget> window_;
    QPointer<QWidget> control_;
};

// For what comes up next in the same handler.
void MakeActiveAtOnce(QWidget* window);

}  // namespace forms
