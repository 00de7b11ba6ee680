#include "forms/ThemeStyle.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QIcon>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>
#include <functional>

#include "forms/Pictures.h"
#include "forms/Theme.h"
#include "forms/Tokens.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int comboArrowWidth = 36;
constexpr int spinArrowWidth = 36;
constexpr int fieldPadding = 9;
constexpr int signSize = 40;
constexpr int monthArrowSize = 16;

bool Has(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state.testFlag(flag);
}

bool IsHighlighted(const QStyleOption& option, const QWidget* widget) {
    return Has(option, QStyle::State_HasFocus) && widget && widget->property("highlight").toBool();
}

bool IsPartOfField(const QWidget* widget) {
    const QWidget* parent = widget ? widget->parentWidget() : nullptr;
    return qobject_cast<const QComboBox*>(parent) || qobject_cast<const QAbstractSpinBox*>(parent);
}

QColor InkOf(const QStyleOption& option) {
    return Has(option, QStyle::State_Enabled) ? TheTokens().Ink : TheTokens().Faint;
}

void DrawField(QPainter& painter, const QStyleOption& option, const QWidget* widget) {
    const bool focused = Has(option, QStyle::State_HasFocus);
    const bool enabled = Has(option, QStyle::State_Enabled);
    const qreal width = focused ? 2 : 1;
    QColor ground = enabled ? TheTokens().Paper : TheTokens().ReadOnly;
    if (IsHighlighted(option, widget)) ground = TheTokens().Focus;
    painter.setPen(QPen(focused ? TheTokens().Ink : TheTokens().Edge, width));
    painter.setBrush(ground);
    const qreal inset = width / 2;
    painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), TheTokens().Corner - 2,
                            TheTokens().Corner - 2);
}

void DrawChevron(QPainter& painter, const QPointF& middle, const QColor& colour, bool up = false) {
    const qreal dip = up ? -2 : 2;
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({middle + QPointF(-4, -dip), middle + QPointF(0, dip), middle + QPointF(4, -dip)}));
}

void DrawTickBox(QPainter& painter, const QStyleOption& option, bool round) {
    const bool enabled = Has(option, QStyle::State_Enabled);
    const bool between = Has(option, QStyle::State_NoChange);
    const bool on = between || Has(option, QStyle::State_On);
    const QRectF box = QRectF(option.rect).adjusted(1, 1, -1, -1);
    const qreal corner = round ? box.width() / 2 : 4;
    const QColor mark = enabled ? TheTokens().Accent : TheTokens().Faint;
    const bool filled = on && !round;
    painter.setPen(QPen(on ? mark : (enabled ? TheTokens().Muted : TheTokens().Line), 1.5));
    painter.setBrush(filled ? mark : (enabled ? TheTokens().Paper : TheTokens().ReadOnly));
    painter.drawRoundedRect(box, corner, corner);
    if (!on) return;
    if (round) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(mark);
        painter.drawEllipse(box.center(), box.width() / 4, box.height() / 4);
        return;
    }
    painter.setPen(QPen(TheTokens().OnAccent, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF middle = box.center();
    if (between)
        painter.drawLine(middle + QPointF(-4, 0), middle + QPointF(4, 0));
    else
        painter.drawPolyline(QPolygonF({middle + QPointF(-4, 0), middle + QPointF(-1, 3), middle + QPointF(4, -3.5)}));
}

void DrawFocusRing(QPainter& painter, const QStyleOption& option) {
    painter.setPen(QPen(TheTokens().Accent, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}

// A disc with a sign: what a message box is about.
QPixmap Sign(const QString& sign, const QColor& colour) {
    return Drawn(Scaled(signSize), [&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        const QRectF disc(1, 1, Scaled(signSize) - 2, Scaled(signSize) - 2);
        painter.drawEllipse(disc);
        QFont font = QApplication::font();
        font.setPixelSize(Scaled(signSize) * 3 / 5);
        font.setBold(true);
        painter.setFont(font);
        painter.setPen(TheTokens().OnAccent);
        painter.drawText(disc, Qt::AlignCenter, sign);
    });
}

// In the bar of a calendar: to the month before, or to the one after.
QPixmap MonthArrow(bool back) {
    return Drawn(monthArrowSize, [&](QPainter& painter) {
        const QPointF middle(monthArrowSize / 2.0, monthArrowSize / 2.0);
        const qreal dip = back ? -3 : 3;
        painter.setPen(QPen(TheTokens().OnAccent, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(
            QPolygonF({middle + QPointF(-dip, -6), middle + QPointF(dip, 0), middle + QPointF(-dip, 6)}));
    });
}

}  // namespace

ThemeStyle::ThemeStyle() : QProxyStyle(u"Fusion"_s) {}

void ThemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
    if (control != CC_ComboBox && control != CC_SpinBox)
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    const auto middleOf = [&](SubControl part) {
        return QRectF(subControlRect(control, option, part, widget)).center();
    };
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    DrawField(*painter, *option, widget);
    if (control == CC_ComboBox) {
        DrawChevron(*painter, middleOf(SC_ComboBoxArrow), InkOf(*option));
    } else {
        DrawChevron(*painter, middleOf(SC_SpinBoxUp), InkOf(*option), true);
        DrawChevron(*painter, middleOf(SC_SpinBoxDown), InkOf(*option));
    }
    painter->restore();
}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QPointF middle = QRectF(option->rect).center();
    switch (element) {
        case PE_IndicatorCheckBox:
            DrawTickBox(*painter, *option, false);
            break;
        case PE_IndicatorRadioButton:
            DrawTickBox(*painter, *option, true);
            break;
        case PE_IndicatorArrowDown:
        case PE_IndicatorSpinDown:
            DrawChevron(*painter, middle, InkOf(*option));
            break;
        case PE_IndicatorArrowUp:
        case PE_IndicatorSpinUp:
            DrawChevron(*painter, middle, InkOf(*option), true);
            break;
        case PE_FrameFocusRect:
            DrawFocusRing(*painter, *option);
            break;
        case PE_PanelLineEdit:
            // Within a combo or spin box the whole control is painted already.
            if (!IsPartOfField(widget)) QProxyStyle::drawPrimitive(element, option, painter, widget);
            break;
        default:
            painter->restore();
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    painter->restore();
}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return TheTokens().TickSize;
        case PM_CheckBoxLabelSpacing:
        case PM_RadioButtonLabelSpacing:
            return 8;
        case PM_MessageBoxIconSize:
            return Scaled(signSize);
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            return TheTokens().Margin;
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return TheTokens().Spacing;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ThemeStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* answer) const {
    // A list below the box, not a menu over it.
    if (hint == SH_ComboBox_Popup) return 0;
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    if (hint == SH_LineEdit_PasswordCharacter) return u'*';
    return QProxyStyle::styleHint(hint, option, widget, answer);
}

QSize ThemeStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const {
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_ComboBox || type == CT_SpinBox) {
        const bool entry = widget && widget->property("role") == u"entry"_s;
        result.setHeight(qMax(result.height(), entry ? TheTokens().EntryHeight : TheTokens().FieldHeight));
        result.setWidth(qMax(result.width(), size.width() + fieldPadding + Scaled(comboArrowWidth) + 4));
    }
    if (type == CT_CheckBox || type == CT_RadioButton)
        result.setHeight(qMax(result.height(), TheTokens().TickSize + 6));
    return result;
}

QIcon ThemeStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    switch (icon) {
        case SP_MessageBoxInformation:
            return Sign(u"i"_s, TheTokens().Accent);
        case SP_MessageBoxQuestion:
            return Sign(u"?"_s, TheTokens().Accent);
        case SP_MessageBoxWarning:
            return Sign(u"!"_s, TheTokens().Warning);
        case SP_MessageBoxCritical:
            return Sign(u"×"_s, TheTokens().Danger);
        case SP_ArrowLeft:
        case SP_ArrowRight:
            return MonthArrow(icon == SP_ArrowLeft);
        default:
            return QProxyStyle::standardIcon(icon, option, widget);
    }
}

// A finger may come down anywhere in the line of an option, and not on its caption alone.
QRect ThemeStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    if (element == SE_RadioButtonClickRect || element == SE_CheckBoxClickRect) return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect ThemeStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
    const QRect whole = option->rect;
    const auto at = [&](const QRect& place) { return visualRect(option->direction, whole, place); };
    const auto right = [&](int width) { return whole.adjusted(whole.width() - width, 0, 0, 0); };
    if (control == CC_ComboBox && part == SC_ComboBoxArrow) return at(right(Scaled(comboArrowWidth)));
    if (control == CC_ComboBox && part == SC_ComboBoxEditField)
        return at(whole.adjusted(fieldPadding, 2, -Scaled(comboArrowWidth), -2));
    if (control == CC_SpinBox) {
        const QRect arrows = right(Scaled(spinArrowWidth)).adjusted(0, 2, 0, -2);
        switch (part) {
            case SC_SpinBoxUp:
                return at(arrows.adjusted(0, 0, 0, -arrows.height() / 2));
            case SC_SpinBoxDown:
                return at(arrows.adjusted(0, arrows.height() / 2, 0, 0));
            case SC_SpinBoxEditField:
                return at(whole.adjusted(fieldPadding, 2, -Scaled(spinArrowWidth), -2));
            default:
                break;
        }
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

}  // namespace forms
