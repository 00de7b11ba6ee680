#pragma once

#include <QString>
#include <QStringList>

// The menu entries that a user's access level switches off at login. Levels are compared as numbers; level 1 and 2
// have their rules, any other value switches nothing off.
QStringList EntriesSwitchedOff(const QString& accLevel);
// Entries that a level switches on explicitly.
QStringList EntriesSwitchedOn(const QString& accLevel);
