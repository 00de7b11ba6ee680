#include "upkeep/goods/CellText.h"

#include <QRegularExpression>

#include "upkeep/Words.h"
#include "values/Csv.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const QRegularExpression& KeptText() {
    static const QRegularExpression pattern(u"^=\"([^\"]*)\"$"_s);
    return pattern;
}

}  // namespace

QString TextOfCell(const QString& cell) {
    const auto kept = KeptText().match(cell);
    return kept.hasMatch() ? kept.captured(1) : values::UnguardedText(cell);
}

QString FaultOfCell(const QString& cell) {
    const QString text = cell.trimmed();
    if (text.startsWith(u'=') && !KeptText().match(text).hasMatch())
        return Words::tr("'%1' is a formula. Copy the cell in the spreadsheet and paste it as a value.").arg(text);
    static const QRegularExpression error(u"^#([A-Z/0]+[!?]|N/A|#+)$"_s);
    if (error.match(text).hasMatch())
        return Words::tr("'%1' is an error that the spreadsheet shows instead of a value.").arg(text);
    return {};
}

}  // namespace upkeep
