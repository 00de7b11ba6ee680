#pragma once

#include <QStringList>

#include "upkeep/ManagerStore.h"

namespace manager {

// A kept count as lines of 40 columns, for paper.
QStringList DrawerLines(const upkeep::DrawerCount& count);
// Its notes and coins in one line, "3 x 20.00, 5 x 0.50".
QString PiecesText(const upkeep::DrawerCount& count);

}  // namespace manager
