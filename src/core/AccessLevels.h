#pragma once

#include <QString>
#include <QStringList>

// Of the users who may open the owner's program and are told of its backups.
inline constexpr int OwnersLevel = 3;
bool IsOwner(const QString& accLevel);

// The menu entries that a user's access level switches off at login. Levels are compared as numbers; level 1 and 2
// have their rules, any other value switches nothing off.
QStringList EntriesSwitchedOff(const QString& accLevel);
// Entries that a level switches on explicitly.
QStringList EntriesSwitchedOn(const QString& accLevel);
