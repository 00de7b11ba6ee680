#pragma once

#include <QAbstractButton>

// A button of the click table. Its text is the caption "name = price"; it shows the name, wrapped, over the price, and
// a picture beside them when it has one. An empty Tag marks a free button, which is pale but can be pressed.
class TouchButton : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag WRITE SetTag)

public:
    explicit TouchButton(QWidget* parent = nullptr);

    const QString& Tag() const { return tag_; }
    void SetTag(const QString& code);
    // "name = price"; an ampersand in a name is no shortcut.
    void SetCaption(const QString& caption);
    void Clear();

    QSize sizeHint() const override { return {96, 66}; }
    QSize minimumSizeHint() const override { return {40, 24}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintFace(QPainter& painter) const;
    QString tag_;
};
