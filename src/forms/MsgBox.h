#pragma once

#include <QString>

// Every message of the system goes through here as a modal QMessageBox; tests script the answers.
namespace forms {

enum class Icon { None, Information, Warning, Critical, Question };

// A box with an OK button. An empty title is the program's name.
void Tell(const QString& text, Icon icon = Icon::None, const QString& title = {});
inline void Inform(const QString& text, const QString& title) {
    Tell(text, Icon::Information, title);
}

// A yes-no box with a question mark; Yes is the default button, Esc means no.
bool Ask(const QString& text, const QString& title);

}  // namespace forms
