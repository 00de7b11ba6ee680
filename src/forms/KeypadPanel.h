#pragma once

#include <QPushButton>
#include <QWidget>

#include "forms/Keypad.h"

class QFrame;
class QGridLayout;

namespace forms {

// A key that is touched or clicked: either way once, and with two thumbs at a time.
class KeypadKey : public QPushButton {
    Q_OBJECT

public:
    explicit KeypadKey(const QString& name);

protected:
    bool event(QEvent* event) override;
};

// The keypad itself: a small window beside a box, which knows nothing of what its keys do.
class KeypadPanel : public QWidget {
    Q_OBJECT

public:
    KeypadPanel(QWidget* window, const KeypadWish& wish, QSize screen);

Q_SIGNALS:
    void Typed(int key, const QString& text);
    void Offered(const QString& text);
    void Closed();
    // Letters have taken the place of digits, or the other way round: the size is another one.
    void Swapped();

private:
    void Build(bool letters);
    void AddNumbers();
    void AddLetters();
    void AddOffers();
    KeypadKey* Add(const QString& name, const QString& caption, QRect cell);
    void AddCharacter(QChar character, QRect cell);
    void AddCommon(QRect back, QRect close, QRect enter);
    void AddSwap(const QString& caption, bool letters, QRect cell);
    void Capitals(bool on);

    KeypadWish wish_;
    bool isRoomy_;
    QFrame* frame_ = nullptr;
    QGridLayout* grid_ = nullptr;
    QList<std::pair<KeypadKey*, QChar>> letterKeys_;
    bool capitals_ = false;
};

}  // namespace forms
