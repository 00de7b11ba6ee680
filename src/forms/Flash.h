#pragma once

#include <QTimer>

class QWidget;

namespace forms {

// Gives a control other looks for a moment, so that something is noticed out of the corner of an eye.
class Flash : public QObject {
    Q_OBJECT

public:
    explicit Flash(QWidget* control);

    // The control has this role (Theme.h) for a second, and its own again.
    void Show(const QString& role);
    // The same until Show() is called.
    void Hold(const QString& role);

private:
    QWidget* control_;
    QString own_;
    QTimer over_;
};

}  // namespace forms
