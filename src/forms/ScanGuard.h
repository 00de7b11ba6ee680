#pragma once

#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <memory>
#include <vector>

#include "forms/ScanBurst.h"

namespace forms {

// A scanner that types into a message box answers nothing: the box stays, the program beeps, and the code that was not
// taken stands below the box's text. A character that may begin a code is held back until it proves to stand alone.
class ScanGuard : public QObject {
    Q_OBJECT

public:
    explicit ScanGuard(QMessageBox* box);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Held {
        std::unique_ptr<QKeyEvent> press;
        std::unique_ptr<QKeyEvent> release;
    };
    // True when the key is used up.
    bool KeyPressed(const QKeyEvent& key);
    bool KeyReleased(const QKeyEvent& key);
    void Hold(const QKeyEvent& key);
    // What was held back was no code: it acts now.
    void LetGo();
    void Send(QKeyEvent& key);
    void Refuse();

    QMessageBox* box_;
    ScanBurst burst_;
    std::vector<Held> held_;
    QTimer alone_;
    QStringList refused_;
    bool isSending_ = false;
};

}  // namespace forms
