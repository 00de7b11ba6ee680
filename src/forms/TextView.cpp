#include "forms/TextView.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTemporaryFile>

#include "forms/Tokens.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int margin = 12;

}  // namespace

TextView::TextView(QWidget* parent)
    : QAbstractScrollArea(parent), decoder_([](const QByteArray& bytes) { return QString::fromLatin1(bytes); }) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(TheTokens().TextSize);
    font.setStyleHint(QFont::Monospace);
    viewport()->setFont(font);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->setAutoFillBackground(false);
    setFocusPolicy(Qt::StrongFocus);
}

void TextView::SetDecoder(Decoder decoder) {
    decoder_ = std::move(decoder);
}

bool TextView::Open(const QString& path) {
    Clear();
    const bool opened = lines_.Open(path);
    LayOut();
    return opened;
}

void TextView::ShowText(const QString& text) {
    Clear();
    QTemporaryFile file;
    if (!file.open() || file.write(text.toUtf8()) < 0 || !file.flush())
        throw values::FileError(file, u"write a file"_s);
    SetDecoder([](const QByteArray& line) { return QString::fromUtf8(line); });
    Open(file.fileName());
}

void TextView::Clear() {
    lines_.Close();
    markFrom_ = markTo_ = {};
    LayOut();
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
}

void TextView::ScrollToEnd() {
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

QString TextView::Line(int number) const {
    return decoder_(lines_.Line(number));
}

QString TextView::PlainText() const {
    return Decoded(lines_.Bytes(0, LineCount() - 1));
}

QString TextView::Decoded(QByteArray bytes) const {
    return decoder_(bytes.replace("\r\n", "\n"));
}

QString TextView::MarkedText() const {
    const auto [first, last] = std::minmax(markFrom_, markTo_);
    if (first == last) return {};
    const QString firstLine = Line(first.line);
    if (first.line == last.line) return firstLine.mid(first.column, last.column - first.column);
    return firstLine.mid(first.column) + u'\n' + Decoded(lines_.Bytes(first.line + 1, last.line - 1)) +
           Line(last.line).left(last.column);
}

int TextView::LineHeight() const {
    return viewport()->fontMetrics().lineSpacing();
}

int TextView::ColumnWidth() const {
    return viewport()->fontMetrics().horizontalAdvance(u'0');
}

int TextView::LinesInSight() const {
    return qMax(1, (viewport()->height() - 2 * margin) / LineHeight());
}

void TextView::LayOut() {
    const int width = lines_.Longest() * ColumnWidth() + 2 * margin;
    verticalScrollBar()->setRange(0, qMax(0, LineCount() - LinesInSight()));
    verticalScrollBar()->setPageStep(LinesInSight());
    horizontalScrollBar()->setRange(0, qMax(0, width - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(ColumnWidth() * 4);
    viewport()->update();
}

void TextView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    const bool atEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    LayOut();
    if (atEnd) ScrollToEnd();
}

void TextView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) LayOut();
}

void TextView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.setFont(viewport()->font());
    const int left = margin - horizontalScrollBar()->value();
    const int top = verticalScrollBar()->value();
    const int last = qMin(LineCount() - 1, top + LinesInSight());
    for (int number = top; number <= last; ++number) {
        QString text = Line(number);
        // A control code has no picture, and a tab would break the pitch.
        for (QChar& character : text)
            if (!character.isPrint()) character = u' ';
        const int y = margin + (number - top) * LineHeight();
        const auto [from, to] = MarkedColumns(number, static_cast<int>(text.size()));
        if (to > from)
            painter.fillRect(left + from * ColumnWidth(), y, (to - from) * ColumnWidth(), LineHeight(),
                             TheTokens().ChosenRow);
        painter.setPen(TheTokens().Ink);
        painter.drawText(left, y + viewport()->fontMetrics().ascent(), text);
    }
}

std::pair<int, int> TextView::MarkedColumns(int line, int length) const {
    const auto [first, last] = std::minmax(markFrom_, markTo_);
    if (line < first.line || line > last.line) return {0, 0};
    return {line == first.line ? first.column : 0, line == last.line ? last.column : length};
}

void TextView::keyPressEvent(QKeyEvent* event) {
    QScrollBar* down = verticalScrollBar();
    if (event->matches(QKeySequence::Copy)) return CopyMarked();
    if (event->matches(QKeySequence::SelectAll)) return MarkAll();
    if (event->key() == Qt::Key_Home) return down->setValue(0);
    if (event->key() == Qt::Key_End) return ScrollToEnd();
    QAbstractScrollArea::keyPressEvent(event);
}

void TextView::Mark(Place from, Place to) {
    markFrom_ = from;
    markTo_ = to;
    viewport()->update();
}

void TextView::MarkAll() {
    if (LineCount() == 0) return;
    const int last = LineCount() - 1;
    Mark({}, {last, static_cast<int>(Line(last).size())});
}

void TextView::CopyMarked() const {
    const QString text = MarkedText();
    if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

TextView::Place TextView::PlaceAt(const QPoint& point) const {
    if (LineCount() == 0) return {};
    const int row = (point.y() - margin) / LineHeight() - (point.y() < margin ? 1 : 0);
    const int line = qBound(0, verticalScrollBar()->value() + row, LineCount() - 1);
    const int x = point.x() - margin + horizontalScrollBar()->value();
    const int column = (x + ColumnWidth() / 2) / ColumnWidth();
    return {line, qBound(0, column, static_cast<int>(Line(line).size()))};
}

void TextView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const Place place = PlaceAt(event->position().toPoint());
    Mark(event->modifiers() & Qt::ShiftModifier ? markFrom_ : place, place);
}

void TextView::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return;
    const QPoint point = event->position().toPoint();
    QScrollBar* down = verticalScrollBar();
    if (point.y() < 0) down->setValue(down->value() - 1);
    if (point.y() > viewport()->height()) down->setValue(down->value() + 1);
    Mark(markFrom_, PlaceAt(point));
}

}  // namespace forms
