#include "forms/ScanBurst.h"

#include <QKeyEvent>

namespace forms {

namespace {

constexpr int FewestCharacters = 3;

bool IsPlain(const QKeyEvent& key) {
    return !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

}  // namespace

bool IsCharacter(const QKeyEvent& key) {
    const QString text = key.text();
    return IsPlain(key) && !text.isEmpty() && text.at(0).isPrint();
}

bool IsEnter(const QKeyEvent& key) {
    return IsPlain(key) && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
}

bool IsModifier(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
        case Qt::Key_CapsLock:
        case Qt::Key_NumLock:
            return true;
        default:
            return false;
    }
}

bool ScanBurst::IsFollowedBy(const QKeyEvent& key) const {
    if (!sinceLast_.isValid()) return false;
    if (sinceLast_.elapsed() <= LongestGap) return true;
    return lastStamp_ != 0 && key.timestamp() >= lastStamp_ && key.timestamp() - lastStamp_ <= LongestGap;
}

void ScanBurst::Add(const QKeyEvent& key) {
    if (!IsFollowedBy(key)) code_.clear();
    if (IsCharacter(key)) code_ += key.text();
    sinceLast_.start();
    lastStamp_ = key.timestamp();
}

void ScanBurst::Forget() {
    code_.clear();
    sinceLast_.invalidate();
}

bool ScanBurst::IsScan() const {
    return code_.size() >= FewestCharacters;
}

bool ScanBurst::IsEndedBy(const QKeyEvent& key) const {
    return IsScan() && IsEnter(key) && IsFollowedBy(key);
}

}  // namespace forms
