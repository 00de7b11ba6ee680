#pragma once

#include <QDateTime>
#include <QString>

#include "values/Money.h"

namespace manager {

// A moment, an amount and a size as the owner's pages show them.
QString MomentText(const QDateTime& moment);
QString AmountText(values::Money amount);
QString SizeText(qint64 bytes);

}  // namespace manager
