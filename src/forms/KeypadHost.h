#pragma once

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPointer>
#include <optional>

#include "forms/Keypad.h"
#include "forms/KeypadPanel.h"

class QMouseEvent;

namespace forms {

// Brings the keypad, sends its keys and takes it away again.
class KeypadHost : public QObject {
    Q_OBJECT

public:
    explicit KeypadHost(QObject* parent);

    void AskBeforeShowing(std::function<bool()> wanted) { wanted_ = std::move(wanted); }
    QWidget* Shown() const { return panel_ && panel_->isVisible() ? panel_ : nullptr; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MousePressed(QWidget* receiver, const QMouseEvent& event);
    void MouseReleased(QWidget* receiver, const QMouseEvent& event);
    void FollowFocus(QWidget* now);
    void ShowAt(QWidget* box, const KeypadWish& wish);
    void Place();
    void Hide();

    void Type(int key, const QString& text);
    void TypeWhole(const QString& text);
    // False when the box has lost the focus meanwhile.
    bool Send(int key, const QString& text);
    void FollowEnter(QWidget* window);

    std::function<bool()> wanted_;
    QPointer<KeypadPanel> panel_;
    // The box that the keypad is for.
    QPointer<QWidget> box_;
    // A tap under way.
    QPointer<QWidget> pressed_;
    QPointF pressedAt_;
    QElapsedTimer sincePress_;
    // Within a key of the keypad, whose handler may move the focus; a real key ends what the Enter key has begun.
    bool isTyping_ = false;
    bool isFollowing_ = false;
};

}  // namespace forms
