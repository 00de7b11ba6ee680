#include "manager/labels/LabelPainter.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <algorithm>

#include "manager/labels/Dots.h"
#include "manager/labels/LabelText.h"
#include "upkeep/labels/UnitPrice.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;
using upkeep::Barcode;
using upkeep::Measure;

namespace manager {

namespace {

// Millimetres.
constexpr double NarrowestEan = 0.245, NarrowestCode = 0.165, BestModule = 0.40;
constexpr double SmallestName = 1.9, LargestName = 6, SmallestPrice = 2.5, LargestPrice = 18;
constexpr double SmallType = 2.4, LargestSmallType = 4.5, SmallestType = 1.7, CodeType = 2.5;
constexpr double LowestBars = 5, HighestBars = 14;
// Shares of a label's height.
constexpr double NameShare = 0.30, BarsShare = 0.27;
constexpr double TallLabel = 40;

struct Shares {
    QRect name, price, bars, code;
};

QString Words(const char* text) {
    return QCoreApplication::translate("manager::Label", text);
}

Shares Divide(const Dots& dots, const QRect& place, bool hasBars) {
    const int height = place.height();
    const int code = LineHeight(LabelFont(dots.Of(CodeType)));
    const int bars = hasBars ? qBound(dots.Of(LowestBars), qRound(height * BarsShare), dots.Of(HighestBars)) : 0;
    const int name = qRound(height * NameShare);
    Shares shares;
    shares.name = QRect(place.topLeft(), QSize(place.width(), name));
    shares.code = QRect(place.left(), place.top() + height - code, place.width(), code);
    shares.bars = QRect(place.left(), dots.Down(shares.code.top() - bars), place.width(), bars);
    const int top = place.top() + name, bottom = hasBars ? shares.bars.top() - dots.Of(0.5) : shares.code.top();
    shares.price = QRect(place.left(), top, place.width(), bottom - top);
    return shares;
}

// In the middle of the place, with room for the tail of a comma.
void PaintFigure(QPainter& painter, const QRect& place, const FittedText& figure) {
    const QRectF digits = QFontMetricsF(figure.font).tightBoundingRect(u"0,"_s);
    painter.setFont(figure.font);
    painter.drawText(QPointF(place.left(), place.top() + (place.height() - digits.height()) / 2 - digits.top()),
                     figure.lines[0]);
}

// The figure large at the right, currency and unit small beside its end; what a kilogram costs at the left.
void PaintPrice(QPainter& painter, const Dots& dots, const QRect& place, const LabelFacts& facts) {
    constexpr double shareOfHeight = 0.92, heightOfDigits = 0.88, shareBesideUnitPrice = 0.62;
    const int gap = dots.Of(0.8);
    // Beside a large figure the small type grows with it.
    const int small =
        std::clamp(place.height() / 5, std::min(dots.Of(SmallType), place.height() / 3), dots.Of(LargestSmallType));
    const int smallest = std::min(small, dots.Of(SmallestType));
    const FittedText unit = FitLine(facts.unit, place.width() / 4, smallest, small, false);
    const FittedText currency = FitLine(facts.currency, place.width() / 4, small, small * 3 / 2, true);
    const int beside = std::max(TextWidth(unit.font, unit.lines[0]), TextWidth(currency.font, currency.lines[0]));
    const int room = facts.unitPrice.isEmpty() ? place.width() : qRound(place.width() * shareBesideUnitPrice);
    const int largest = std::min(dots.Of(LargestPrice), qRound(place.height() * shareOfHeight / heightOfDigits));
    const FittedText figure =
        FitLine(facts.price, room - beside - gap, std::min(dots.Of(SmallestPrice), largest), largest, true);
    const QRect right(place.left() + place.width() - beside, place.top(), beside, place.height());
    const int figureWidth = TextWidth(figure.font, figure.lines[0]);
    const QRect figurePlace(right.left() - gap - figureWidth, place.top(), figureWidth, place.height());
    PaintFigure(painter, figurePlace, figure);
    const int block = LineHeight(currency.font) + LineHeight(unit.font);
    const QRect words(right.left(), place.top() + (place.height() - block) / 2, beside, block);
    DrawLines(painter, words, Qt::AlignLeft | Qt::AlignTop, currency);
    DrawLines(painter, words, Qt::AlignLeft | Qt::AlignBottom, unit);
    if (facts.unitPrice.isEmpty()) return;
    const QSize left(figurePlace.left() - gap - place.left(), place.height());
    const FittedText each = FitLine(facts.unitPrice, left.width(), smallest, small, false);
    DrawLines(painter, QRect(place.topLeft(), left), Qt::AlignLeft | Qt::AlignVCenter, each);
}

void PaintBars(QPainter& painter, const Dots& dots, const QRect& place, const Modules& modules, int moduleDots) {
    const int module = moduleDots * dots.Parts();
    int left = place.left() + dots.Down((place.width() - modules.Width() * module) / 2) + modules.quietLeft * module;
    for (size_t i = 0; i < modules.black.size();) {
        const size_t from = i;
        while (i < modules.black.size() && modules.black[i] == modules.black[from]) ++i;
        const int width = static_cast<int>(i - from) * module;
        if (modules.black[from]) painter.fillRect(QRect(left, place.top(), width, place.height()), Qt::black);
        left += width;
    }
}

QString UnitPriceText(const upkeep::ShelfGood& good, const QString& currency) {
    if (!good.price) return {};
    const auto price = upkeep::UnitPriceOf(good.name, good.unit, *good.price);
    if (!price || price->isThePrice) return {};
    const QString text = price->measure == Measure::Litre ? Words(QT_TRANSLATE_NOOP("manager::Label", "1 l = %1 %2"))
                                                          : Words(QT_TRANSLATE_NOOP("manager::Label", "1 kg = %1 %2"));
    return text.arg(values::Format(price->price, u"###,###,##0.00"), currency);
}

}  // namespace

LabelFacts FactsOf(const upkeep::ShelfGood& good, const QString& currency) {
    const QString each = good.unit.trimmed();
    const Barcode barcode = upkeep::BarcodeOf(good.code);
    const Modules modules = ModulesOf(barcode, good.code);
    return {
        .name = good.name.simplified(),
        .price = good.price ? values::Format(*good.price, u"###,###,##0.00") : QString(),
        .currency = good.price ? currency : QString(),
        .unit =
            each.isEmpty() || !good.price ? QString() : Words(QT_TRANSLATE_NOOP("manager::Label", "per %1")).arg(each),
        .unitPrice = UnitPriceText(good, currency),
        .isUnitPriceUnknown = good.price && !upkeep::UnitPriceOf(good.name, good.unit, *good.price),
        .code = good.code,
        .barcode = barcode,
        .modules = modules.black.empty() ? 0 : modules.Width(),
    };
}

int ModuleDots(const Dots& dots, Barcode kind, int modules, int width) {
    const double narrowest = kind == Barcode::Code128 ? NarrowestCode : NarrowestEan;
    for (int count = width / dots.Parts() / std::max(1, modules); count > 0; --count) {
        const double millimetres = dots.Millimetres(count * dots.Parts());
        if (millimetres < narrowest) return 0;
        if (millimetres <= BestModule) return count;
    }
    return 0;
}

bool HasBars(const Dots& dots, const QRect& place, const LabelFacts& facts) {
    return facts.modules > 0 && ModuleDots(dots, facts.barcode, facts.modules, place.width()) > 0;
}

void PaintLabel(QPainter& painter, const Dots& dots, const QRect& place, const LabelFacts& facts) {
    const bool hasBars = HasBars(dots, place, facts);
    const Shares shares = Divide(dots, place, hasBars);
    const int mostLines = dots.Millimetres(place.height()) > TallLabel ? 3 : 2;
    painter.setPen(Qt::black);
    DrawLines(painter, shares.name, Qt::AlignLeft | Qt::AlignTop,
              FitLines(facts.name, shares.name.size(), dots.Of(SmallestName), dots.Of(LargestName), mostLines));
    if (!facts.price.isEmpty()) PaintPrice(painter, dots, shares.price, facts);
    if (hasBars)
        PaintBars(painter, dots, shares.bars, ModulesOf(facts.barcode, facts.code),
                  ModuleDots(dots, facts.barcode, facts.modules, place.width()));
    DrawLines(painter, shares.code, Qt::AlignHCenter | Qt::AlignBottom,
              FitLine(facts.code, shares.code.width(), dots.Of(SmallestType), dots.Of(CodeType), false));
}

}  // namespace manager
