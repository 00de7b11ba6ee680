#pragma once

#include <QDateTime>

#include "values/Money.h"

namespace manager {

// As the user's locale writes them.
QString MomentInWords(const QDateTime& time);
QString SizeInWords(qint64 bytes);
QString AmountInWords(values::Money amount);

// The last good backup of this register with its size and place, or that there is none.
QString LastBackupInWords();

}  // namespace manager
