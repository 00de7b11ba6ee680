#include "manager/charts/ChartLook.h"

#include <QApplication>
#include <cmath>

#include "forms/Tokens.h"
#include "values/Format.h"
#include "values/Numbers.h"
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
    const auto mix = [strength](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * strength)); };
    return {mix(ground.red(), accent.red()), mix(ground.green(), accent.green()), mix(ground.blue(), accent.blue())};
}

QString CellText(const values::Value& value) {
    if (value.GetKind() == values::Value::Kind::Money) return values::Format(value.As<values::Money>(), u"###,###,##0.00");
    return value.TextOrEmpty();
}

}  // namespace manager
