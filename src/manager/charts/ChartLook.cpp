#include "manager/charts/ChartLook.h"

#include <QApplication>
#include <cmath>

#include "forms/Tokens.h"
#include "manager/Texts.h"
#include "manager/charts/ChartTable.h"

namespace manager {

namespace {

ChartLook LookOf(const forms::Tokens& tokens) {
    QFont text = QApplication::font();
    text.setPixelSize(tokens.LabelSize);
    return {tokens.Paper, tokens.Ink, tokens.Muted, tokens.Line, tokens.Accent, text};
}

}  // namespace

ChartLook ChartLook::OfTheme() {
    return LookOf(forms::TheTokens());
}

// The usual colours, whatever the screen has.
ChartLook ChartLook::OfPaper() {
    return LookOf(forms::Tokens());
}

QColor ChartLook::Tint(double strength) const {
    const auto mix = [strength](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * strength));
    };
    return {mix(ground.red(), accent.red()), mix(ground.green(), accent.green()), mix(ground.blue(), accent.blue())};
}

QStringList ChartTable::TextsOf(const std::vector<values::Value>& row) const {
    QStringList texts;
    for (const values::Value& cell : row) {
        const bool isAmount = cell.GetKind() == values::Value::Kind::Money && !numbers.contains(texts.size());
        texts << (isAmount ? AmountText(cell.As<values::Money>()) : cell.TextOrEmpty());
    }
    return texts;
}

}  // namespace manager
