#pragma once

#include <QMainWindow>

#include "forms/Form.h"

namespace forms {

// The one window frame: a menu, a status bar, and the child form that fills it. Keys that reach the frame itself go to
// the child, as though a control of it had the focus.
class Frame : public QMainWindow {
    Q_OBJECT

public:
    explicit Frame(QWidget* parent = nullptr);

    // Makes a form the child that fills the frame; loads it first. It leaves the frame when it is unloaded.
    void ShowChild(Form* child);
    // Null when no child is shown.
    Form* ActiveChild() const;

protected:
    // A window manager's or anybody else's request to close is refused in every case.
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* room_;
};

}  // namespace forms
