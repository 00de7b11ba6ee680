#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace manager {

// Told what is done; false when its user wants to leave.
using Progress = std::function<bool(const QString& doing)>;

// Does work in a thread while the window lives on; what it tells of its progress stands in the notice of a long work,
// which its user can leave with Esc. Throws what the work throws.
void WorkBeside(QWidget* form, const std::function<void(const Progress& progress)>& work);

}  // namespace manager
