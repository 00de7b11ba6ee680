#pragma once

#include <QStringList>

namespace store::dialect {

// The known names that someone who wrote `name` may have meant, best first: those that differ by few letters
// (a wrong, missing, additional or swapped one each) or begin alike. At most three.
QStringList NearNames(QStringView name, const QStringList& known);

}  // namespace store::dialect
