#pragma once

#include <QStringList>

#include "core/Settings.h"
#include "forms/Theme.h"

// What velton.ini in the program's folder adds to this installation. Without the file, or a key, the till is as
// delivered.
struct Installation {
    Heading heading = BuiltInHeading();                 // [heading] name, address, ident, phone
    QString backupFolder;                               // [backup] folder; days, weeks, months say how many are kept
    bool sound = true;                                  // [till] sound = yes | no
    forms::Contrast contrast = forms::Contrast::Usual;  // [till] contrast = usual | high | dark
};

inline Installation TheInstallation;

// Reads the file anew. Gives a sentence for each value that can't be used, with its line; such a key stays as if it
// were missing. A file that can't be read throws a FileError.
QStringList ReadInstallation();
