#include "forms/LongWork.h"

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int NoticeAfter = 500;  // milliseconds
constexpr int BetweenLooks = 40;

bool IsInput(QEvent::Type type) {
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::TouchBegin:
        case QEvent::ContextMenu:
        case QEvent::Close:
            return true;
        default:
            return false;
    }
}

}  // namespace

LongWork::LongWork(QWidget* form) : form_(form) {
    sinceBegin_.start();
    sinceLook_.start();
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

LongWork::~LongWork() {
    QApplication::restoreOverrideCursor();
    delete notice_;
}

bool LongWork::GoesOn() {
    if (left_ || sinceLook_.elapsed() < BetweenLooks || sinceBegin_.elapsed() < NoticeAfter) return !left_;
    if (!notice_) ShowNotice();
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    sinceLook_.restart();
    return !left_;
}

void LongWork::ShowNotice() {
    if (!form_) return;
    auto* notice = new QFrame(form_);
    notice->setObjectName(u"panelLongWork"_s);
    notice->setProperty("role", u"panel"_s);
    notice->setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(notice);
    layout->setContentsMargins(32, 24, 32, 24);
    layout->setSpacing(16);
    auto* text = new QLabel(u"This takes a while ..."_s, notice);
    text->setProperty("role", u"strong"_s);
    text->setAlignment(Qt::AlignCenter);
    auto* leave = new QPushButton(u"ESC-Leave"_s, notice);
    leave->setObjectName(u"cmdLeave"_s);
    leave->setFocusPolicy(Qt::NoFocus);
    connect(leave, &QPushButton::clicked, this, [this] { left_ = true; });
    layout->addWidget(text);
    layout->addWidget(leave);
    notice->adjustSize();
    notice->move(form_->rect().center() - notice->rect().center());
    notice->show();
    notice->raise();
    notice_ = notice;
}

bool LongWork::eventFilter(QObject* watched, QEvent* event) {
    if (!IsInput(event->type())) return false;
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) left_ = true;
    // A window hands on what is meant for the button.
    const auto* widget = qobject_cast<QWidget*>(watched);
    const bool isForNotice = widget && notice_ && (widget == notice_ || notice_->isAncestorOf(widget));
    if (!widget || isForNotice) return false;
    // A window that is asked to close takes silence for a yes.
    if (event->type() == QEvent::Close) event->ignore();
    return true;
}

}  // namespace forms
