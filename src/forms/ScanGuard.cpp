#include "forms/ScanGuard.h"

#include <QApplication>
#include <QLabel>

#include "forms/Sound.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int ShownCodes = 3;
constexpr int ShownLength = 48;

bool IsTab(const QKeyEvent& key) {
    return key.key() == Qt::Key_Tab && key.modifiers() == Qt::NoModifier;
}

// What scanners send for the control characters within a code; Esc and the arrows are nobody's but the cashier's.
bool IsControlCharacter(const QKeyEvent& key) {
    return key.modifiers() & Qt::ControlModifier;
}

}  // namespace

ScanGuard::ScanGuard(QMessageBox* box) : QObject(box), box_(box) {
    alone_.setSingleShot(true);
    alone_.setInterval(ScanBurst::LongestGap + 10);
    alone_.callOnTimeout(this, [this] { burst_.IsScan() ? Refuse() : LetGo(); });
    qApp->installEventFilter(this);
}

bool ScanGuard::eventFilter(QObject* watched, QEvent* event) {
    const bool isPress = event->type() == QEvent::KeyPress;
    if (isSending_ || (!isPress && event->type() != QEvent::KeyRelease)) return false;
    const auto* receiver = qobject_cast<QWidget*>(watched);
    if (!receiver || receiver->window() != box_) return false;
    const auto& key = static_cast<QKeyEvent&>(*event);
    if (key.isAutoRepeat() || IsModifier(key)) return false;
    if (!(isPress ? KeyPressed(key) : KeyReleased(key))) return false;
    event->accept();
    return true;
}

bool ScanGuard::KeyPressed(const QKeyEvent& key) {
    const bool follows = burst_.IsFollowedBy(key);
    if (burst_.IsScan() && (!follows || burst_.IsEndedBy(key))) Refuse();
    // Nothing is held back while a code runs on, nor when one was told just now: what its scanner ends it with is left.
    const bool isOfCode = follows && held_.empty() && (burst_.IsScan() || burst_.Code().isEmpty());
    if (isOfCode && (IsEnter(key) || IsTab(key) || IsControlCharacter(key))) {
        burst_.Add(key);
        return true;
    }
    if (IsCharacter(key) || IsTab(key)) {
        if (!follows) LetGo();
        burst_.Add(key);
        Hold(key);
        return true;
    }
    if (burst_.IsScan()) Refuse();
    burst_.Forget();
    if (held_.empty()) return false;
    // In the order in which they came, to whom the ones before lead.
    Hold(key);
    LetGo();
    return true;
}

bool ScanGuard::KeyReleased(const QKeyEvent& key) {
    for (Held& held : held_) {
        if (held.press->key() != key.key() || held.release) continue;
        held.release.reset(key.clone());
        return true;
    }
    return false;
}

void ScanGuard::Hold(const QKeyEvent& key) {
    alone_.start();
    held_.push_back({std::unique_ptr<QKeyEvent>(key.clone()), nullptr});
    if (burst_.IsScan()) held_.clear();
}

void ScanGuard::LetGo() {
    alone_.stop();
    for (Held& held : std::exchange(held_, {})) {
        Send(*held.press);
        if (held.release) Send(*held.release);
    }
}

void ScanGuard::Send(QKeyEvent& key) {
    if (!box_->isVisible()) return;
    isSending_ = true;
    QCoreApplication::sendEvent(box_->focusWidget() ? box_->focusWidget() : box_, &key);
    isSending_ = false;
}

void ScanGuard::Refuse() {
    alone_.stop();
    held_.clear();
    const QString code = burst_.Code();
    refused_ << (code.size() > ShownLength ? code.first(ShownLength) + u'…' : code);
    burst_.EndCode();
    const auto last = refused_.last(qMin(refused_.size(), qsizetype{ShownCodes}));
    box_->setInformativeText(tr("Not taken: %1").arg(last.join(u", "_s)));
    if (auto* label = box_->findChild<QLabel*>(u"qt_msgbox_informativelabel"_s)) {
        label->setProperty("role", u"strong"_s);
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(7, 0, 8, 4);  // below the text
    }
    Beep();
}

}  // namespace forms
