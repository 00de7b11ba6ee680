#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QWidget;

namespace forms {

// Something that a screen does takes long: after half a second the screen says so, and the user can leave it by Esc or
// by the button that comes up. Until then keys and touches do nothing else.
class LongWork : public QObject {
    Q_OBJECT

public:
    explicit LongWork(QWidget* form);
    ~LongWork() override;

    // To be asked often; false once the user wants to leave.
    bool GoesOn();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowNotice();

    QPointer<QWidget> form_;
    QPointer<QWidget> notice_;
    QElapsedTimer sinceBegin_;
    QElapsedTimer sinceLook_;
    bool left_ = false;
};

}  // namespace forms
