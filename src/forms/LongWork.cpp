#include "forms/LongWork.h"

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include "forms/Program.h"
#include "forms/Sound.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int NoticeAfterWork = 500;  // milliseconds
constexpr int BetweenLooks = 40;

constexpr int WidestNotice = 640;  // pixels
constexpr int AroundNotice = 16;
constexpr int LongestWord = 24;

LongWork* innermost = nullptr;

bool IsInput(QEvent::Type type) {
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::InputMethod:
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

// A path or an address breaks only where it is told that it may.
QString Breakable(const QString& text) {
    QString result;
    int inWord = 0;
    for (const QChar character : text) {
        inWord = character.isSpace() ? 0 : inWord + 1;
        result += character;
        if (inWord % LongestWord == LongestWord - 1) result += QChar(0x200B);
    }
    return result;
}

QWidget* WindowInFront() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    const auto windows = QApplication::topLevelWidgets();
    const auto visible = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && window->windowType() != Qt::Popup && window->windowType() != Qt::ToolTip;
    });
    return visible == windows.end() ? nullptr : *visible;
}

}  // namespace

LongWork::LongWork(QWidget* form) : LongWork(form, tr("This takes a while ..."), NoticeAfterWork) {}

LongWork::LongWork(const QString& waitsFor, QWidget* form) : LongWork(form, waitsFor, NoticeAfterWait) {}

LongWork::LongWork(QWidget* form, const QString& text, int noticeAfter)
    : form_(form), text_(text), noticeAfter_(noticeAfter), outer_(std::exchange(innermost, this)) {
    sinceBegin_.start();
    sinceLook_.start();
}

LongWork::~LongWork() {
    // What was typed at the notice until now is not meant for the screen below.
    if (notice_ && innermost == this && !isLooking_ && !ProgramIsEnding()) Look();
    LongWork** link = &innermost;
    while (*link && *link != this) link = &(*link)->outer_;
    if (*link) *link = outer_;
    if (hasCursor_) QApplication::restoreOverrideCursor();
    delete notice_;
}

bool LongWork::GoesOn(const QString& waitsFor) {
    text_ = waitsFor;
    return GoesOn();
}

bool LongWork::IsUnderWay() {
    return innermost != nullptr;
}

bool LongWork::GoesOn() {
    if (left_ || ProgramIsEnding()) return false;
    if (innermost != this) return innermost->GoesOn();
    if (!hasCursor_) QApplication::setOverrideCursor(Qt::WaitCursor);
    hasCursor_ = true;
    const bool isDue = sinceLook_.elapsed() >= BetweenLooks && sinceBegin_.elapsed() >= noticeAfter_;
    if (isDue && !isLooking_) Look();
    return !left_;
}

void LongWork::Look() {
    if (!notice_ || !notice_->isVisible()) ShowNotice();
    PlaceNotice();
    modal_ = QApplication::activeModalWidget();
    isLooking_ = true;
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    isLooking_ = false;
    sinceLook_.restart();
}

// A modal window is the only one that can be touched.
QWidget* LongWork::Host() const {
    QWidget* modal = QApplication::activeModalWidget();
    const bool isSeen = form_ && form_->isVisible() && (!modal || form_->window() == modal);
    if (isSeen) return form_;
    return modal ? modal : WindowInFront();
}

void LongWork::ShowNotice() {
    for (LongWork* outer = outer_; outer; outer = outer->outer_) delete outer->notice_;
    delete notice_;
    QWidget* host = Host();
    if (!host) return;
    auto* notice = new QFrame(host);
    notice->setObjectName(u"panelLongWork"_s);
    notice->setProperty("role", u"panel"_s);
    notice->setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(notice);
    layout->setContentsMargins(32, 24, 32, 24);
    layout->setSpacing(16);
    auto* text = new QLabel(notice);
    text->setObjectName(u"lblWaitsFor"_s);
    text->setProperty("role", u"strong"_s);
    text->setTextFormat(Qt::PlainText);
    text->setAlignment(Qt::AlignCenter);
    auto* leave = new QPushButton(tr("ESC-Leave"), notice);
    leave->setObjectName(u"cmdLeave"_s);
    leave->setFocusPolicy(Qt::NoFocus);
    connect(leave, &QPushButton::clicked, this, [this] { left_ = true; });
    layout->addWidget(text, 1);
    layout->addWidget(leave);
    notice->show();
    notice_ = notice;
}

// As wide as its text up to a limit, then as high as it takes, and never beyond the window that it lies over.
void LongWork::PlaceNotice() {
    if (!notice_) return;
    auto* text = notice_->findChild<QLabel*>();
    text->setText(Breakable(text_));
    text->setWordWrap(false);
    const QRect room =
        notice_->parentWidget()->rect().adjusted(AroundNotice, AroundNotice, -AroundNotice, -AroundNotice);
    QLayout* layout = notice_->layout();
    layout->activate();
    QSize size = layout->sizeHint();
    if (const int widest = std::min(WidestNotice, room.width()); size.width() > widest) {
        text->setWordWrap(true);
        layout->activate();
        size = {widest, layout->heightForWidth(widest)};
    }
    notice_->resize(size.boundedTo(room.size()));
    notice_->move(room.center() - notice_->rect().center());
    notice_->raise();
}

bool LongWork::IsForNotice(const QObject* watched) const {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    return widget && notice_ && (widget == notice_ || notice_->isAncestorOf(widget));
}

bool LongWork::IsOverNotice(const QPointerEvent& event) const {
    if (!notice_ || event.points().isEmpty()) return false;
    return notice_->rect().contains(notice_->mapFromGlobal(event.points().first().globalPosition()).toPoint());
}

void LongWork::SwallowKey(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Escape) left_ = true;
    if (!scan_.IsEndedBy(key)) return scan_.Add(key);
    scan_.Forget();
    Beep();
}

bool LongWork::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    const bool isOurs = innermost == this && QApplication::activeModalWidget() == modal_;
    if (!IsInput(type) || !isOurs || IsForNotice(watched)) return false;
    if (type == QEvent::KeyPress) SwallowKey(static_cast<QKeyEvent&>(*event));
    // A window hands on what is meant for the notice, and what ends a press that it has handed on. A press elsewhere
    // would move the focus before a control sees it.
    if (watched->isWindowType() && event->isPointerEvent()) {
        const bool isEnd = type == QEvent::MouseButtonRelease;
        return !isEnd && !IsOverNotice(*static_cast<QPointerEvent*>(event));
    }
    // A window that is asked to close takes silence for a yes, a shortcut that nobody claims is looked for in menus.
    event->setAccepted(type != QEvent::Close);
    return true;
}

}  // namespace forms
