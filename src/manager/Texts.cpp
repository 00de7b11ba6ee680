#include "manager/Texts.h"

#include "values/DateText.h"
#include "values/Format.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace manager {

QString MomentText(const QDateTime& moment) {
    return values::DateText(moment.date()) + u' ' + values::TimeText(moment.time());
}

QString AmountText(values::Money amount) {
    return values::Format(amount, u"###,###,##0.00");
}

QString SizeText(qint64 bytes) {
    return values::UserLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

}  // namespace manager
