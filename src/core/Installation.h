#pragma once

#include <QStringList>

#include "core/Settings.h"
#include "forms/Theme.h"
#include "upkeep/BackupPlan.h"

// What velton.ini in the program's folder adds to this installation. Without the file, or a key, the till is as
// delivered.
struct Installation {
    Heading heading = BuiltInHeading();                 // [heading] name, address, ident, phone
    bool sound = true;                                  // [till] sound = yes | no
    forms::Contrast contrast = forms::Contrast::Usual;  // [till] contrast = usual | high | dark
    upkeep::BackupPlan backup;                          // [backup] folder, days, weeks, months
};

inline Installation TheInstallation;

// Reads the file anew. Gives a sentence for each value that can't be used, with its line; such a key stays as if it
// were missing. A file that can't be read throws a FileError.
QStringList ReadInstallation();
