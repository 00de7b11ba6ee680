#include "upkeep/goods/CellText.h"

#include <QRegularExpression>
#include <algorithm>

#include "upkeep/Words.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

// Apostrophes, and behind them what begins a formula.
qsizetype ApostrophesOfFormula(const QString& text) {
    const auto end = std::find_if(text.begin(), text.end(), [](QChar c) { return c != u'\''; });
    const bool isFormula = end != text.end() && QStringView(u"=+-@\t\r").contains(*end);
    return isFormula ? end - text.begin() : -1;
}

const QRegularExpression& KeptText() {
    static const QRegularExpression pattern(u"^=\"([^\"]*)\"$"_s);
    return pattern;
}

}  // namespace

QString GuardedCell(const QString& text) {
    return ApostrophesOfFormula(text) >= 0 ? u'\'' + text : text;
}

QString TextOfCell(const QString& cell) {
    if (ApostrophesOfFormula(cell) > 0) return cell.sliced(1);
    const auto kept = KeptText().match(cell);
    return kept.hasMatch() ? kept.captured(1) : cell;
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
