#include "masterdata/clicktable/TouchButton.h"

#include <QPainter>

#include "forms/Theme.h"
#include "forms/Tokens.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 4;
constexpr int LineMargin = 2;  // above and below
constexpr int FocusLine = 2;
// The type of a button; where a name would be cut for it, there is a smaller one.
struct Face {
    int nameSize;
    int priceSize;
    int priceHeight;
};
constexpr Face Large{16, 18, 24};
constexpr Face Usual{13, 15, 20};
constexpr Face Low{11, 13, 14};
constexpr int RoomForLarge = 72;
constexpr int RoomForPicture = 90;
constexpr int PictureWidth = 40;  // at most, and no more than a third
constexpr int ShortestLastWord = 3;
const auto BetweenNameAndPrice = u" = "_s;
constexpr QChar Ellipsis = u'…';

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
        while (end > 0 && metrics.horizontalAdvance(rest.left(end)) + ElideRoom > width) {
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
    //: a button without a product
    setAccessibleName(tr("Free"));
    setFocusPolicy(Qt::NoFocus);  // a scanner types on, whatever was touched last
}

void TouchButton::SetTag(const QString& code) {
    tag_ = code;
    setAccessibleName(code.isEmpty() ? tr("Free") : QString());
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
    const QColor paper = isDown() && taken ? forms::TheTokens().ChosenRow
                         : taken           ? forms::TheTokens().Paper
                                           : forms::TheTokens().Free;
    painter.setPen(hasFocus() ? QPen(forms::TheTokens().Ink, FocusLine)
                              : QPen(taken ? forms::TheTokens().Edge : forms::TheTokens().Line, 1));
    painter.setBrush(paper);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), forms::TheTokens().Corner,
                            forms::TheTokens().Corner);
    if (!text().isEmpty()) PaintFace(painter);
}

void TouchButton::PaintFace(QPainter& painter) const {
    QRect face = rect().adjusted(Margin, LineMargin, -Margin, -LineMargin);
    // Only now is the file read, and may turn out to hold no picture.
    if (face.width() >= forms::Scaled(RoomForPicture) && !icon().availableSizes().isEmpty()) {
        const QRect picture(face.left(), face.top(), qMin(forms::Scaled(PictureWidth), face.width() / 3),
                            face.height());
        icon().paint(&painter, picture);
        face.setLeft(picture.right() + Margin);
    }
    const qsizetype split = text().lastIndexOf(BetweenNameAndPrice);
    const QString name = split < 0 ? text() : text().left(split);
    const QString price = split < 0 ? QString() : text().mid(split + BetweenNameAndPrice.size());

    QFont nameFont = font();
    const Face* sizes = &Usual;
    QRect nameArea;
    QString shown;
    for (const Face* tried : {&Large, &Usual, &Low}) {
        if (tried == &Large && face.height() < forms::Scaled(RoomForLarge)) continue;
        sizes = tried;
        nameFont.setPixelSize(forms::Scaled(sizes->nameSize));
        nameArea = face.adjusted(0, 0, 0, price.isEmpty() ? 0 : -forms::Scaled(sizes->priceHeight));
        const QFontMetrics metrics(nameFont);
        shown = Wrapped(name, metrics, nameArea.width(),
                        qMax(1, (nameArea.height() + 2 * LineMargin) / metrics.lineSpacing()));
        if (!shown.contains(Ellipsis)) break;
    }
    painter.setFont(nameFont);
    painter.setPen(isEnabled() ? forms::TheTokens().Ink : forms::TheTokens().Muted);
    painter.drawText(nameArea, Qt::AlignCenter, shown);

    const int priceHeight = forms::Scaled(sizes->priceHeight);
    QFont priceFont = font();
    priceFont.setPixelSize(forms::Scaled(sizes->priceSize));
    priceFont.setBold(true);
    painter.setFont(priceFont);
    painter.setPen(isEnabled() ? forms::TheTokens().Accent : forms::TheTokens().Muted);
    painter.drawText(QRect(face.left(), face.bottom() - priceHeight + 1, face.width(), priceHeight), Qt::AlignCenter,
                     values::Format(price, u"0.00"));
}
