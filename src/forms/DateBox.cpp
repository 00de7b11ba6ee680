#include "forms/DateBox.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <utility>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int PartsOfADate = 3;
constexpr int YearDigits = 4;
constexpr int ThisCentury = 2000;

bool IsDigit(QChar typed) {
    return typed >= u'0' && typed <= u'9';
}

bool IsPoint(QChar typed) {
    return u".,/- "_s.contains(typed);
}

// The character that a key puts into a box; a null one for keys that type nothing.
QChar TypedBy(const QKeyEvent& key) {
    const bool isCommand = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return isCommand || key.text().size() != 1 ? QChar() : key.text().front();
}

}  // namespace

DateBox::DateBox(QWidget* parent) : QDateEdit(parent) {
    setCalendarPopup(true);
}

void DateBox::keyPressEvent(QKeyEvent* event) {
    const QChar typed = TypedBy(*event);
    if (IsDigit(typed)) return AddDigit(typed);
    if (IsPoint(typed)) return AddPoint();
    if (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete) {
        typed_.chop(1);
        return ShowTyped();
    }
    TakeTyped();
    QDateEdit::keyPressEvent(event);
}

void DateBox::AddDigit(QChar digit) {
    const auto points = typed_.count(u'.');
    const bool isYear = points == PartsOfADate - 1;
    const auto digits = typed_.section(u'.', -1).size();
    if (!isYear && digits == 2) typed_ += u'.';
    typed_ += digit;
    if (isYear && digits + 1 == YearDigits) return TakeTyped();
    ShowTyped();
}

void DateBox::AddPoint() {
    const bool isDue = !typed_.isEmpty() && !typed_.endsWith(u'.') && typed_.count(u'.') < PartsOfADate - 1;
    if (!isDue) return;
    typed_ += u'.';
    ShowTyped();
}

// Nothing typed any more: the date that counts.
void DateBox::ShowTyped() {
    if (typed_.isEmpty()) return setDate(date());
    const QSignalBlocker quiet(lineEdit());
    lineEdit()->setText(typed_);
}

void DateBox::TakeTyped() {
    if (typed_.isEmpty()) return;
    const QStringList parts = std::exchange(typed_, {}).split(u'.', Qt::SkipEmptyParts);
    const int day = parts[0].toInt();
    const int month = parts.size() > 1 ? parts[1].toInt() : date().month();
    int year = parts.size() > 2 ? parts[2].toInt() : date().year();
    if (parts.value(2).size() <= 2 && year < 100) year += ThisCentury;
    const QDate wanted(year, month, day);
    const bool exists = wanted.isValid() && wanted >= minimumDate() && wanted <= maximumDate();
    setDate(exists ? wanted : date());
}

void DateBox::stepBy(int steps) {
    TakeTyped();
    QDateEdit::stepBy(steps);
}

void DateBox::mousePressEvent(QMouseEvent* event) {
    TakeTyped();
    // The calendar is made by the first press. Digits typed to it would be put together as Qt's own box does.
    calendarWidget()->setDateEditEnabled(false);
    QDateEdit::mousePressEvent(event);
}

void DateBox::focusOutEvent(QFocusEvent* event) {
    TakeTyped();
    QDateEdit::focusOutEvent(event);
}

bool DateBox::focusNextPrevChild(bool next) {
    return QWidget::focusNextPrevChild(next);
}

}  // namespace forms
