#pragma once

#include <QPointer>
#include <QString>

#include "forms/Form.h"

// Who logged in: set by a good login, read until the program ends. A change of cashier does not touch it.
struct Session {
    QString LoginNumber;
    QString SessionUserID;
    QString SessionUserName;
    QString SessionUserPosition;
};

inline Session TheSession;

// The screen that opened a helper dialog: the dialog reads and writes its controls by name. Null once it is gone.
inline QPointer<forms::Form> CallerForm;
// The help text that frmHelp shows, below the program's folder.
inline QString HelpFileName;
