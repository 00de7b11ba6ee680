#pragma once

#include <QString>

// Plays one working day of the demo shop in a program folder, from the first login to the log-off.
void PlayWorkingDay(const QString& pictures);
