#pragma once

#include <QTextBrowser>

// A text to be read: a column of comfortable width in the middle of its room, scrolled by keys, wheel, thumb or finger.
class ReadingView : public QTextBrowser {
    Q_OBJECT

public:
    explicit ReadingView(QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;
};
