#include "screens/Picture.h"

#include <QApplication>
#include <QImageWriter>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QTextEdit>
#include <QTimer>
#include <QTimerEvent>

#include "forms/Keypad.h"
#include "forms/Tokens.h"
#include "player/Keys.h"
#include "screens/Palette.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

constexpr int BarHeight = 34;
constexpr int BarMargin = 12;
constexpr int Smallest = 100;  // the compression, in per cent

// A clock on a screen goes on each second of the real time, whenever that comes.
void BringClocksUpToDate(const QWidget& window) {
    for (auto* timer : window.findChildren<QTimer*>(u"Timer1"_s)) {
        if (!timer->isActive()) continue;
        QTimerEvent tick(timer->timerId());
        QCoreApplication::sendEvent(timer, &tick);
    }
}

// A long text is laid out bit by bit, and its scroll bar tells how far that has come.
void LayOutTexts(const QWidget& window) {
    for (const auto* text : window.findChildren<QTextEdit*>()) text->document()->pageCount();
    drivers::Settle();
}

// An open menu is a window of its own.
void DrawOpenMenu(QPixmap& picture, const QWidget& window) {
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        QPainter(&picture).drawPixmap(window.mapFromGlobal(menu->pos()), menu->grab());
    }
}

// So is the keypad, which lies beside a small dialog. `corner` is where the picture begins on the screen.
QPixmap WithKeypad(const QPixmap& picture, QPoint corner) {
    QWidget* keypad = forms::ShownKeypad();
    if (!keypad) return picture;
    const QRect whole = picture.rect().united(QRect(keypad->pos() - corner, keypad->size()));
    QPixmap both(whole.size());
    both.fill(forms::TheTokens().Line);
    QPainter painter(&both);
    painter.drawPixmap(-whole.topLeft(), picture);
    painter.drawPixmap(keypad->pos() - corner - whole.topLeft(), keypad->grab());
    return both;
}

QPixmap WithTitle(const QPixmap& content, const QString& title) {
    QPixmap picture(content.width() + 2, content.height() + BarHeight + 1);
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), forms::TheTokens().TabBehind);
    painter.setPen(forms::TheTokens().Edge);
    painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
    QFont bold = QApplication::font();
    bold.setPixelSize(forms::TheTokens().LabelSize);
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(forms::TheTokens().Ink);
    const QRect bar(BarMargin, 0, picture.width() - 2 * BarMargin, BarHeight);
    painter.drawText(bar, Qt::AlignVCenter | Qt::AlignLeft, title);
    painter.drawPixmap(1, BarHeight, content);
    return picture;
}

}  // namespace

QImage PictureOf(QWidget& window) {
    BringClocksUpToDate(window);
    LayOutTexts(window);
    if (window.isMaximized()) window.resize(window.screen()->size());  // to the edges, without a frame
    drivers::Settle();
    QPixmap picture = window.grab();
    DrawOpenMenu(picture, window);
    QPoint corner = window.mapToGlobal(QPoint(0, 0));
    if (!qobject_cast<QMainWindow*>(&window)) {
        picture = WithTitle(picture, window.windowTitle());
        corner -= QPoint(1, BarHeight);
    }
    picture = WithKeypad(picture, corner);
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
}

bool SavePicture(const QImage& picture, const QString& path) {
    QImageWriter writer(path, "png");
    writer.setCompression(Smallest);
    return writer.write(picture.convertToFormat(QImage::Format_Indexed8, PaletteOf(picture)));
}

}  // namespace screens
