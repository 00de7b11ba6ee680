#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include "forms/ScanBurst.h"

class QPointerEvent;

namespace forms {

// Something that a screen does takes long, or has to wait for something: after half a second of work, after one second
// of waiting, a notice says so, and the user can leave it by Esc or by the notice's button. While the notice stands
// every other key and touch is swallowed, those that came shortly before it among them: an Esc typed too early still
// leaves, and a scanner's code that is lost so is beeped at. Work that ends earlier leaves the keys to whom they were
// typed for.
class LongWork : public QObject {
    Q_OBJECT

public:
    static constexpr int NoticeAfterWait = 1000;  // milliseconds

    // The notice lies over the form, or over the window in front where none is given or it is not to be seen. The time
    // counts from here.
    explicit LongWork(QWidget* form);
    // What is waited for and why, in whole sentences.
    explicit LongWork(const QString& waitsFor, QWidget* form = nullptr);
    ~LongWork() override;

    // To be asked often, at least ten times a second; false once the user wants to leave. Where another wait has begun
    // within this one, that one is asked: Esc leaves the innermost.
    bool GoesOn();
    // The same, when what is waited for may have changed.
    bool GoesOn(const QString& waitsFor);

    // Whether there is one.
    static bool IsUnderWay();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    LongWork(QWidget* form, const QString& text, int noticeAfter);
    QWidget* Host() const;
    void Look();
    void ShowNotice();
    void PlaceNotice();
    bool IsForNotice(const QObject* watched) const;
    bool IsOverNotice(const QPointerEvent& event) const;
    void SwallowKey(const QKeyEvent& key);

    QPointer<QWidget> form_;
    QString text_;
    const int noticeAfter_;  // milliseconds
    QPointer<QWidget> notice_;
    // The modal window at this moment; one that comes up later gets its keys.
    QPointer<QWidget> modal_;
    // The one that this one began within.
    LongWork* outer_;
    QElapsedTimer sinceBegin_;
    QElapsedTimer sinceLook_;
    ScanBurst scan_;
    bool hasCursor_ = false;
    bool isLooking_ = false;
    bool left_ = false;
};

}  // namespace forms
