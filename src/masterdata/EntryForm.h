#pragma once

#include "support/OfficeForm.h"

// The entry of one row: Enter moves on as the Tab key does, F5 saves, F1 helps, F12 closes without saving. The twins
// that add and change a row share one class derived from this, and one .ui.
class EntryForm : public OfficeForm {
    Q_OBJECT

protected:
    void SaveHelpAndClose(QAbstractButton* save, QAbstractButton* help, QAbstractButton* close,
                          std::initializer_list<Qt::Key> closeKeys = {Qt::Key_F12},
                          const QString& helpFile = ProgramHelp);

    // Tells "Fill in all required fields." and gives false when one of the texts is empty.
    bool AllFilled(std::initializer_list<QWidget*> boxes) const;

    // Does something with errors trapped: a duplicate key is told in the screen's own words, in a plain box, and the
    // focus goes to `box`; any other error by number and description. False when there was an error.
    bool Trapped(const std::function<void()>& action, const QString& duplicate, QWidget* box = nullptr) const;
};
