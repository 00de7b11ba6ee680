#include "forms/KeypadPanel.h"

#include <QFrame>
#include <QGridLayout>
#include <QPainter>
#include <QTouchEvent>

#include "forms/Pictures.h"
#include "forms/Theme.h"
#include "forms/Tokens.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int Gap = 6;
constexpr int RoomyHeight = 700;  // of a screen, from which on keys may be larger
constexpr QSize NumberKey(60, 50), RoomyNumberKey(70, 58);
constexpr QSize LetterKey(47, 47), RoomyLetterKey(54, 52);
constexpr int WordSize = 17;
constexpr int PictureSize = 24;

const QStringList LetterRows{u"1234567890"_s, u"qwertzuiopšđ"_s, u"asdfghjklčćž"_s, u"yxcvbnm.,-_"_s};

enum class Sign { Back, Close, Capitals };

// Strokes within a square of 24.
QIcon Picture(Sign sign) {
    return Drawn(PictureSize, [sign](QPainter& painter) {
        painter.setPen(QPen(TheTokens().Ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        switch (sign) {
            case Sign::Back:
                painter.drawPolygon(QPolygonF({{2, 12}, {8, 5}, {22, 5}, {22, 19}, {8, 19}}));
                painter.drawLine(QPointF(11, 9), QPointF(17, 15));
                painter.drawLine(QPointF(17, 9), QPointF(11, 15));
                break;
            case Sign::Close:
                painter.drawLine(QPointF(6, 6), QPointF(18, 18));
                painter.drawLine(QPointF(18, 6), QPointF(6, 18));
                break;
            case Sign::Capitals:
                painter.drawPolygon(QPolygonF({{12, 3}, {21, 12}, {16, 12}, {16, 20}, {8, 20}, {8, 12}, {3, 12}}));
                break;
        }
    });
}

}  // namespace

KeypadKey::KeypadKey(const QString& name) {
    setObjectName(name);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_AcceptTouchEvents);
    setProperty("tight", true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    setIconSize({PictureSize, PictureSize});
}

bool KeypadKey::event(QEvent* event) {
    const auto isOver = [&] {
        const auto points = static_cast<QTouchEvent*>(event)->points();
        return !points.isEmpty() && rect().contains(points.first().position().toPoint());
    };
    switch (event->type()) {
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
            if (isOver() != isDown()) setDown(isOver());
            break;
        case QEvent::TouchEnd: {
            const bool isTouched = isDown() && isOver();
            setDown(false);
            if (isTouched) click();
            break;
        }
        case QEvent::TouchCancel:
            setDown(false);
            break;
        default:
            return QPushButton::event(event);
    }
    event->accept();
    return true;
}

// A tool tip's window is let alone by every window manager and never becomes the active one; as a child of the box's
// window it works above a modal form as well.
KeypadPanel::KeypadPanel(QWidget* window, const KeypadWish& wish, QSize screen)
    : QWidget(window, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus),
      wish_(wish),
      isRoomy_(screen.height() >= Scaled(RoomyHeight)) {
    setObjectName(u"keypad"_s);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    QPalette night = palette();
    night.setColor(QPalette::Window, TheTokens().Night);  // behind the corners
    setPalette(night);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    Build(wish_.keys == KeypadKeys::Text);
}

void KeypadPanel::Build(bool letters) {
    letterKeys_.clear();
    if (frame_) {
        frame_->hide();
        layout()->removeWidget(frame_);
        frame_->deleteLater();  // the key that swaps is in it
    }
    frame_ = new QFrame;
    frame_->setProperty("role", u"night"_s);
    grid_ = new QGridLayout(frame_);
    grid_->setContentsMargins(Gap + 2, Gap + 2, Gap + 2, Gap + 2);
    grid_->setSpacing(Gap);
    letters ? AddLetters() : AddNumbers();
    const QSize key = letters ? (isRoomy_ ? RoomyLetterKey : LetterKey) : (isRoomy_ ? RoomyNumberKey : NumberKey);
    for (int column = 0; column < grid_->columnCount(); ++column)
        grid_->setColumnMinimumWidth(column, Scaled(key.width()));
    for (int row = 0; row < grid_->rowCount(); ++row) grid_->setRowMinimumHeight(row, Scaled(key.height()));
    layout()->addWidget(frame_);
    frame_->show();
}

void KeypadPanel::AddNumbers() {
    AddOffers();
    const int top = grid_->count() == 0 ? 0 : 2;
    for (int digit = 1; digit <= 9; ++digit)
        AddCharacter(QChar(u'0' + digit), {(digit - 1) % 3, top + 2 - (digit - 1) / 3, 1, 1});
    AddCommon({3, top, 1, 1}, {3, top + 1, 1, 1}, {3, top + 2, 1, 2});
    if (wish_.keys != KeypadKeys::Number) {
        AddCharacter(u'0', {0, top + 3, 1, 1});
        AddCharacter(u'-', {1, top + 3, 1, 1});
        return AddSwap(u"ABC"_s, true, {2, top + 3, 1, 1});
    }
    const bool hasMinus = wish_.also.contains(u'-');
    AddCharacter(u'0', {0, top + 3, hasMinus ? 1 : 2, 1});
    if (hasMinus) AddCharacter(u'-', {1, top + 3, 1, 1});
    AddCharacter(values::DecimalSeparatorChar(), {2, top + 3, 1, 1});
}

void KeypadPanel::AddLetters() {
    for (int row = 0; row < LetterRows.size(); ++row) {
        const int shift = row == 3 ? 1 : 0;
        for (int column = 0; column < LetterRows[row].size(); ++column)
            AddCharacter(LetterRows[row].at(column), {column + shift, row, 1, 1});
    }
    AddCommon({10, 0, 2, 1}, {7, 4, 2, 1}, {9, 4, 3, 1});
    KeypadKey* capitals = Add(u"keyCapitals"_s, {}, {0, 3, 1, 1});
    capitals->setIcon(Picture(Sign::Capitals));
    connect(capitals, &QPushButton::clicked, this, [this] { Capitals(!capitals_); });
    AddSwap(u"123"_s, false, {0, 4, 2, 1});
    AddCharacter(u' ', {2, 4, 5, 1});
    Capitals(capitals_);
}

void KeypadPanel::AddOffers() {
    if (!wish_.offers) return;
    const QStringList offers = wish_.offers().mid(0, 4);
    for (int i = 0; i < offers.size(); ++i) {
        KeypadKey* key = Add(u"keyOffer%1"_s.arg(i), offers[i], {i % 2 * 2, i / 2, 2, 1});
        connect(key, &QPushButton::clicked, this, [this, text = offers[i]] { Q_EMIT Offered(text); });
    }
}

KeypadKey* KeypadPanel::Add(const QString& name, const QString& caption, QRect cell) {
    auto* key = new KeypadKey(name);
    key->setText(caption);
    QFont font = key->font();
    font.setPixelSize(caption.size() > 1 && caption.at(0).isLetter() ? Scaled(WordSize) : TheTokens().EntrySizes[0]);
    key->setFont(font);
    grid_->addWidget(key, cell.y(), cell.x(), cell.height(), cell.width());
    return key;
}

void KeypadPanel::AddCharacter(QChar character, QRect cell) {
    KeypadKey* key = Add(u"key"_s + character, character == u'-' ? u"−"_s : QString(character), cell);
    if (character.isLetter()) letterKeys_.append({key, character});
    connect(key, &QPushButton::clicked, this, [this, character] {
        const QChar typed = capitals_ ? character.toUpper() : character;
        Q_EMIT Typed(character.toUpper().unicode(), typed);
    });
}

void KeypadPanel::AddCommon(QRect back, QRect close, QRect enter) {
    KeypadKey* key = Add(u"keyBack"_s, {}, back);
    key->setIcon(Picture(Sign::Back));
    key->setAutoRepeat(true);
    connect(key, &QPushButton::clicked, this, [this] { Q_EMIT Typed(Qt::Key_Backspace, u"\b"_s); });
    key = Add(u"keyClose"_s, {}, close);
    key->setIcon(Picture(Sign::Close));
    connect(key, &QPushButton::clicked, this, &KeypadPanel::Closed);
    key = Add(u"keyEnter"_s, tr("Enter"), enter);
    key->setProperty("role", u"main"_s);
    connect(key, &QPushButton::clicked, this, [this] { Q_EMIT Typed(Qt::Key_Return, u"\r"_s); });
}

void KeypadPanel::AddSwap(const QString& caption, bool letters, QRect cell) {
    connect(Add(u"keySwap"_s, caption, cell), &QPushButton::clicked, this, [this, letters] {
        Build(letters);
        Q_EMIT Swapped();
    });
}

void KeypadPanel::Capitals(bool on) {
    capitals_ = on;
    for (const auto& [key, letter] : letterKeys_) key->setText(on ? letter.toUpper() : letter);
}

}  // namespace forms
