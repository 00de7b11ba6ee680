#pragma once

#include <QStringList>

namespace manager {

// What a printer is tried with: rulers of 32, 40 and 80 columns, and every letter of the shop's code page.
QStringList Rulers();
QStringList Alphabet();

}  // namespace manager
