#pragma once

#include <QAbstractScrollArea>
#include <functional>

#include "forms/TextLines.h"

namespace forms {

// A read-only text of fixed pitch, shown straight from its file: only the lines in sight are read, so a text of any
// size opens at once. Text can be marked with the mouse or Ctrl+A and copied with Ctrl+C.
class TextView : public QAbstractScrollArea {
    Q_OBJECT
    Q_PROPERTY(QString plainText READ PlainText)

public:
    // Turns a line's bytes into as many characters.
    using Decoder = std::function<QString(const QByteArray&)>;

    explicit TextView(QWidget* parent = nullptr);

    // Latin 1 unless another one is set.
    void SetDecoder(Decoder decoder);
    // Shows a file from its start; false, and an empty view, when it cannot be opened.
    bool Open(const QString& path);
    // Shows a text that is in no file; a FileError when there is no room to lay it out.
    void ShowText(const QString& text);
    void Clear();
    void ScrollToEnd();

    int LineCount() const { return lines_.Count(); }
    QString Line(int number) const;
    // The whole text, its lines ended by "\n".
    QString PlainText() const;
    // What is marked, the same way.
    QString MarkedText() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    struct Place {
        int line = 0;
        int column = 0;
        auto operator<=>(const Place&) const = default;
    };

    void LayOut();
    void Mark(Place from, Place to);
    void MarkAll();
    void CopyMarked() const;
    // What is marked of a line, as its first column and the one behind the last.
    std::pair<int, int> MarkedColumns(int line, int length) const;
    Place PlaceAt(const QPoint& point) const;
    QString Decoded(QByteArray bytes) const;
    int LineHeight() const;
    int ColumnWidth() const;
    int LinesInSight() const;

    TextLines lines_;
    Decoder decoder_;
    Place markFrom_;
    Place markTo_;
};

}  // namespace forms
