#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace forms {

// Dims a window for as long as it lives, so that what lies over it stands out. Nothing on the window changes, and the
// window may go first.
class Dimmed : public QObject {
    Q_OBJECT

public:
    // Null dims nothing.
    explicit Dimmed(QWidget* window);
    ~Dimmed() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> veil_;
};

}  // namespace forms
