#pragma once

#include <QString>

class QWidget;

// Qt's own file dialogs (never the platform's), so that they look and answer alike everywhere.
namespace forms {

// The save dialog, named CDL1 as on every screen that has it, takes the name as it is typed.
// The chosen path, or "" when the user cancels. `filter` in Qt's form, "Report (*.txt)"; several joined by ";;".
QString AskSaveName(QWidget* parent, const QString& title, const QString& filter);
// The open dialog shows the filters by their names alone, "Report" of the above. The name need not be one of a file.
QString AskOpenName(QWidget* parent, const QString& title, const QString& filter);

// A folder that is there; "" when the user cancels.
QString AskFolder(QWidget* parent, const QString& title);

}  // namespace forms
