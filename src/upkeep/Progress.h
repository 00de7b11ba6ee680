#pragma once

#include <QString>
#include <functional>

namespace upkeep {

// Long work tells now and then what it is doing; false when its user wants to leave.
using Progress = std::function<bool(const QString& doing)>;
// Goes on, or throws StoreError 3059.
void GoOn(const Progress& progress, const QString& doing);

}  // namespace upkeep
