#pragma once

#include <QList>
#include <QString>
#include <QWidget>
#include <functional>
#include <utility>

#include "player/ModalWatch.h"

namespace forms {
class ListView;
}

class QMessageBox;

// A cashier who works the real screens with keys and touches, answers what comes up, and has pictures taken.
// Whatever does not go as planned throws std::runtime_error with words that tell where; within a script it is thrown
// when the script's screen has closed.
class Cashier {
public:
    // Takes a picture of the window in front.
    using Camera = std::function<void(QWidget& window, const QString& name)>;
    using Script = std::function<void()>;

    explicit Cashier(Camera camera);

    void Start();
    // Where a picture is named, one is taken: here of the login when all is typed.
    void LogIn(const QString& user, const QString& password, const QString& picture = {});
    void Scan(const QString& code);
    void Weigh(const QString& code, const QString& quantity);
    // A touch button, by the product's name on it.
    void Touch(const QString& name);
    void Press(const QString& keys);
    // A button or another control of a loaded screen.
    void Click(const QString& screen, const QString& control);
    // A key of the keypad, by its name.
    void TapKey(const QString& key);
    // Goes to a box of a loaded screen and types over what it holds.
    void Fill(const QString& screen, const QString& box, const QString& keys);
    // F5: posts the invoice and answers the change dialog.
    void Post(const QString& cash, const QString& picture = {});
    // The next message box with this text is answered so.
    void Answer(const QString& text, bool yes, const QString& picture = {});
    // When this screen comes up modally, its user does so and closes it.
    void Within(const QString& screen, Script script);
    // A menu of the main window, by the key that its title names.
    void OpenMenu(const QString& name);
    // A menu entry of the main window, by its name.
    void Choose(const QString& entry);
    // The same for an entry that opens a modal screen, in which the script works.
    void Visit(const QString& entry, const QString& screen, Script script);
    // A key that brings boxes up; all that was to be answered must have come.
    void PressAndAnswer(const QString& keys);
    void ExpectAllDone();

    QWidget* Screen(const QString& name) const;
    // The list of a loaded screen.
    forms::ListView* List(const QString& screen) const;
    QString Shown(const QString& control) const;
    void TakePicture(const QString& name);

private:
    struct BoxAnswer {
        QString text;
        bool yes = false;
        QString picture;
    };

    bool Attend(QWidget& modal);
    void AnswerBox(QMessageBox& box);

    Camera camera_;
    QList<BoxAnswer> answers_;
    QList<std::pair<QString, Script>> scripts_;
    QString trouble_;
    drivers::ModalWatch watch_;
};
