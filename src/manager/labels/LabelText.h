#pragma once

#include <QFont>
#include <QPainter>
#include <QRect>
#include <QStringList>

namespace manager {

// Texts that fit their place. Sizes are pixels of the painter, that is parts of a dot.
struct FittedText {
    QFont font;
    QStringList lines;
};

QFont LabelFont(int pixels, bool isBold = false);
// One line in the largest type from `smallest` to `largest` that fits; cut with "…" where the smallest is too wide.
FittedText FitLine(const QString& text, int width, int smallest, int largest, bool isBold);
// Wrapped at words, and within one that is wider than a line, in the largest type in which all lines fit the place; cut
// with "…" where the smallest takes more.
FittedText FitLines(const QString& text, QSize place, int smallest, int largest, int mostLines);

int LineHeight(const QFont& font);
int TextWidth(const QFont& font, const QString& text);
void DrawLines(QPainter& painter, const QRect& place, Qt::Alignment align, const FittedText& text);

}  // namespace manager
