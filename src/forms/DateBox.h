#pragma once

#include <QDateEdit>

namespace forms {

// A date of the user's: typed from left to right, day, month, year, with or without points between them ("31122026",
// "31.12.26", "5.1."); what is left out stays as it was. The date counts once it is whole, or when the box is left; one
// that does not exist is dropped. Qt's own box would fit each part to those that stand there yet, and make the 30th of
// the 31 that is typed over a date in November.
class DateBox : public QDateEdit {
    Q_OBJECT

public:
    explicit DateBox(QWidget* parent = nullptr);

    void stepBy(int steps) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    // The Tab key leaves the box, and does not stop at each of its parts.
    bool focusNextPrevChild(bool next) override;

private:
    void AddDigit(QChar digit);
    void AddPoint();
    void ShowTyped();
    void TakeTyped();

    QString typed_;
};

}  // namespace forms
