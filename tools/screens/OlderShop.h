#pragma once

#include <QString>

namespace screens {

// The folder of a demo shop that has sold for ten weeks until the evening of 24 November 2026, whose last period is
// still open: what the owner's pictures of weeks and months are taken of. The same in every run.
void MakeOlderShop(const QString& folder);

}  // namespace screens
