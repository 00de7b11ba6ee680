#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <utility>

class QWidget;

// A cashier who works the real screens with keys and touches, answers what comes up, and takes pictures.
// Whatever does not go as planned throws std::runtime_error with words that tell where.
class Cashier {
public:
    // Pictures go to this folder; it is made when it is missing.
    explicit Cashier(QString pictures);

    void Start();
    void LogIn(const QString& user, const QString& password);
    void Scan(const QString& code);
    void Weigh(const QString& code, const QString& quantity);
    // A touch button, by the product's name on it.
    void Touch(const QString& name);
    void Press(const QString& keys);
    // F5: posts the invoice; with `cash` the change dialog is answered.
    void Post(const QString& cash);
    // The next message box with this text is answered so.
    void Answer(const QString& text, bool yes);
    // When this screen comes up modally, its user does so and closes it.
    void Within(const QString& screen, std::function<void()> script);
    // A menu entry of the main window, by its name.
    void Choose(const QString& entry);
    // A key that brings boxes up; all that was to be answered must have come.
    void PressAndAnswer(const QString& keys);

    QString Shown(const QString& control) const;
    void TakePicture(const QString& name);

private:
    QWidget* Screen(const QString& name) const;
    void WatchModal();
    void ExpectAllDone();
    QString pictures_;
    int pictureNumber_ = 0;
    QString cash_;
    QList<std::pair<QString, bool>> answers_;
    QList<std::pair<QString, std::function<void()>>> scripts_;
    QString trouble_;
};
