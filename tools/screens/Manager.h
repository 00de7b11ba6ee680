#pragma once

#include "cashier/Cashier.h"

namespace screens {

// The owner's program on a shop that has traded: its login and each of its pages, a picture each.
void LookAtManager(const QString& shop, const Cashier::Camera& takePicture);

}  // namespace screens
