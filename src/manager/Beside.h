#pragma once

#include "upkeep/Progress.h"

class QWidget;

namespace manager {

// Runs work that takes long in a thread of its own, below a notice over the page that says what is being done and can
// be left by Esc. What the work throws is thrown here. It touches no widget and opens its stores by itself.
void RunBeside(QWidget* page, const QString& doing, const std::function<void(const upkeep::Progress&)>& work);

}  // namespace manager
