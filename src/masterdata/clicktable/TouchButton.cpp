#include "masterdata/clicktable/TouchButton.h"

#include <QPainter>

#include "forms/Tokens.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 4;
constexpr int FocusLine = 2;
constexpr int PriceHeight = 20;
constexpr int PictureWidth = 40;  // at most, and no more than a third
constexpr int ShortestLastWord = 3;
const auto BetweenNameAndPrice = u" = "_s;

// Eliding needs a little more room than the text itself.
constexpr int ElideRoom = 2;

// The name in as many whole lines as fit, the last one elided.
QString Wrapped(const QString& name, const QFontMetrics& metrics, int width, int lines) {
    QString result;
    qsizetype start = 0;
    for (int line = 1; line <= lines && start < name.size(); ++line) {
        const QString rest = name.mid(start);
        if (line == lines || metrics.horizontalAdvance(rest) + ElideRoom <= width)
            return result + metrics.elidedText(rest, Qt::ElideRight, width);
        qsizetype end = rest.size();
        while (end > 0 && metrics.horizontalAdvance(rest.left(end)) > width) {
            const qsizetype blank = rest.lastIndexOf(u' ', end - 1);
            end = blank > 0 ? blank : 0;
        }
        if (end == 0) return result + metrics.elidedText(rest, Qt::ElideRight, width);
        // The unit of "0,5 l" is not left alone in its line.
        const qsizetype blank = rest.lastIndexOf(u' ', end - 1);
        if (blank > 0 && rest.size() - end - 1 < ShortestLastWord) end = blank;
        result += rest.left(end) + u'\n';
        start += end + 1;
    }
    return result;
}

}  // namespace

TouchButton::TouchButton(QWidget* parent) : QAbstractButton(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::NoFocus);  // a scanner types on, whatever was touched last
}

void TouchButton::SetTag(const QString& code) {
    tag_ = code;
    update();
}

void TouchButton::SetCaption(const QString& caption) {
    setText(caption);
    setShortcut({});
}

void TouchButton::Clear() {
    SetCaption({});
    setIcon({});
    SetTag({});
}

void TouchButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool taken = !tag_.isEmpty() && isEnabled();
    const QColor paper = isDown() && taken ? forms::Tokens::ChosenRow
                         : taken           ? forms::Tokens::Paper
                                           : forms::Tokens::Free;
    painter.setPen(hasFocus() ? QPen(forms::Tokens::Ink, FocusLine)
                              : QPen(taken ? forms::Tokens::TouchLine : forms::Tokens::Line, 1));
    painter.setBrush(paper);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), forms::Tokens::Corner,
                            forms::Tokens::Corner);
    if (!text().isEmpty()) PaintFace(painter);
}

void TouchButton::PaintFace(QPainter& painter) const {
    QRect face = rect().adjusted(Margin, Margin, -Margin, -Margin);
    // Only now is the file read, and may turn out to hold no picture.
    if (!icon().availableSizes().isEmpty()) {
        const QRect picture(face.left(), face.top(), qMin(PictureWidth, face.width() / 3), face.height());
        icon().paint(&painter, picture);
        face.setLeft(picture.right() + Margin);
    }
    const qsizetype split = text().lastIndexOf(BetweenNameAndPrice);
    const QString name = split < 0 ? text() : text().left(split);
    const QString price = split < 0 ? QString() : text().mid(split + BetweenNameAndPrice.size());

    QFont nameFont = font();
    nameFont.setPixelSize(13);
    painter.setFont(nameFont);
    painter.setPen(isEnabled() ? forms::Tokens::Ink : forms::Tokens::Muted);
    const QRect nameArea = face.adjusted(0, 0, 0, price.isEmpty() ? 0 : -PriceHeight);
    const QFontMetrics metrics(nameFont);
    const int lines = qMax(1, nameArea.height() / metrics.lineSpacing());
    painter.drawText(nameArea, Qt::AlignCenter, Wrapped(name, metrics, nameArea.width(), lines));

    QFont priceFont = font();
    priceFont.setPixelSize(15);
    priceFont.setBold(true);
    painter.setFont(priceFont);
    painter.setPen(isEnabled() ? forms::Tokens::Accent : forms::Tokens::Muted);
    painter.drawText(QRect(face.left(), face.bottom() - PriceHeight + 1, face.width(), PriceHeight), Qt::AlignCenter,
                     price);
}
