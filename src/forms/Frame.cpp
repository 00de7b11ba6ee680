#include "forms/Frame.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>

#include "forms/Controls.h"
#include "forms/Theme.h"

namespace forms {

Frame::Frame(QWidget* parent) : QMainWindow(parent), room_(new QWidget(this)) {
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowMinMaxButtonsHint);
    auto* layout = new QVBoxLayout(room_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    setCentralWidget(room_);
    menuBar();
    statusBar()->setSizeGripEnabled(false);
}

void Frame::ShowChild(Form* child) {
    child->Load();
    if (!child->IsLoaded()) return;
    if (Form* before = ActiveChild(); before && before != child) before->hide();

    QWidget* wanted = child->focusWidget();
    room_->layout()->addWidget(child);
    child->show();
    activateWindow();
    if (wanted)
        wanted->setFocus();
    else
        SendTab(child);
}

Form* Frame::ActiveChild() const {
    for (auto* form : room_->findChildren<Form*>(Qt::FindDirectChildrenOnly))
        if (!form->isHidden()) return form;
    return nullptr;
}

void Frame::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    FitTypeTo(size());
}

void Frame::closeEvent(QCloseEvent* event) {
    event->ignore();
}

}  // namespace forms
