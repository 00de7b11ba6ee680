#include "store/StoreError.h"

#include <algorithm>

#include "store/Words.h"

using namespace Qt::StringLiterals;

namespace store {

namespace {

// A longer line is shown only around the place in question.
constexpr qsizetype LineWidth = 120;
constexpr qsizetype BeforeCaret = 60;

bool EndsLine(QChar c) {
    return c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

// Tabs and control characters would push the caret aside.
QString Printable(QStringView piece) {
    QString printable = piece.toString();
    for (QChar& c : printable) {
        if (c.category() == QChar::Other_Control) c = u' ';
    }
    return printable;
}

qsizetype WidthOf(QStringView piece) {
    return std::count_if(piece.begin(), piece.end(), [](QChar c) { return !c.isLowSurrogate(); });
}

QString LineWithCaret(QStringView text, Span span) {
    const qsizetype place = std::clamp<qsizetype>(span.offset, 0, text.size());
    qsizetype start = place;
    while (start > 0 && !EndsLine(text[start - 1])) --start;
    qsizetype end = place;
    while (end < text.size() && !EndsLine(text[end])) ++end;

    QString before, after;
    if (end - start > LineWidth) {
        if (place - start > BeforeCaret) {
            start = place - BeforeCaret;
            before = u"..."_s;
        }
        if (end - start > LineWidth) {
            end = start + LineWidth;
            after = u"..."_s;
        }
    }
    const qsizetype spanEnd = std::clamp<qsizetype>(place + span.length, place, end);
    const qsizetype carets = std::max<qsizetype>(1, WidthOf(text.sliced(place, spanEnd - place)));
    return before + Printable(text.sliced(start, end - start)) + after + u'\n' +
           QString(before.size() + WidthOf(text.sliced(start, place - start)), u' ') + QString(carets, u'^');
}

}  // namespace

QString Refusal(int number) {
    switch (number) {
        case values::Overflow:
            return Words::tr("Overflow");
        case StoreLocked:
            return Words::tr("The store is locked by another user");
        case Cancelled:
            return Words::tr("The work was left");
        case DuplicateKey:
            return Words::tr("A row with this key exists already");
        case RelatedRows:
            return Words::tr("Other rows of the store refer to this one");
        case ConversionFailed:
            return Words::tr("A value does not fit the type of its column");
        case DiskFull:
            return Words::tr("There is no room left on the disk");
        case NotAStore:
            return Words::tr("The store is damaged");
        case ReadOnly:
            return Words::tr("The store cannot be written to");
        case DiskError:
            return Words::tr("The disk or the network refused the access");
        default:
            return Words::tr("The store refused the operation");
    }
}

QueryError::QueryError(int number, Span span, QString message, QString queryText, QStringList near)
    : StoreError(number, std::move(message)), span_(span), queryText_(std::move(queryText)), near_(std::move(near)) {}

QString QueryError::Rendered() const {
    QString rendered = Description() + u'\n' + LineWithCaret(queryText_, span_);
    if (!near_.isEmpty()) rendered += u'\n' + Words::tr("Did you mean: %1").arg(near_.join(u", "));
    return rendered;
}

}  // namespace store
