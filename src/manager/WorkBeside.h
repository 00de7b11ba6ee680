#pragma once

#include "upkeep/FileCopy.h"

class QWidget;

namespace manager {

// Does work in a thread while the window lives on; what it tells of its progress stands in the notice of a long work,
// which its user can leave with Esc. Throws what the work throws.
void WorkBeside(QWidget* form, const std::function<void(const upkeep::Progress& progress)>& work);

}  // namespace manager
