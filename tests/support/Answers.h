#pragma once

#include <QMessageBox>
#include <QString>
#include <functional>

class QWidget;

// Answers to what comes up modally, in the order in which it is expected. Message boxes that nobody expects are
// dismissed and fail the test with their text; what was expected and never came fails it too; what nobody answers for
// ten seconds is closed and fails it.
namespace drivers {

class Boxes {
public:
    Boxes() = default;
    Boxes(const Boxes&) = delete;
    Boxes& operator=(const Boxes&) = delete;
    ~Boxes();

    // A message box with exactly this text; `button` is pressed.
    Boxes& Expect(const QString& text, QMessageBox::StandardButton button = QMessageBox::Ok);
    // A message box whose text begins like this: the error number of a report, for instance.
    Boxes& ExpectBeginning(const QString& text, QMessageBox::StandardButton button = QMessageBox::Ok);
    // Further demands on the box (or the file dialog) expected last.
    Boxes& Titled(const QString& title);
    Boxes& WithIcon(QMessageBox::Icon icon);
    // It is answered by these keys instead of its button.
    Boxes& Typing(const QString& keys);
    // Or by this script, which has to close it.
    Boxes& Doing(std::function<void(QMessageBox&)> script);

    // A modal form of this class: the script runs inside its loop and has to close it.
    Boxes& ExpectForm(const QString& className, std::function<void(QWidget&)> script);
    // A file dialog: this path is chosen; an empty one cancels.
    Boxes& ExpectFile(const QString& path);

    // How much of what was expected has not come yet.
    int Left() const;
};

// Starts watching over the modal windows of this process; the test program's main does so.
void WatchModalWindows();

}  // namespace drivers
