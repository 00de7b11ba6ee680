#include "manager/Texts.h"

#include <QLocale>

#include "values/DateText.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

namespace manager {

QString MomentText(const QDateTime& moment) {
    return values::DateText(moment.date()) + u"  "_s + moment.time().toString(u"HH:mm"_s);
}

QString AmountText(values::Money amount) {
    return values::Format(amount, u"###,###,##0.00");
}

QString SizeText(qint64 bytes) {
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

}  // namespace manager
