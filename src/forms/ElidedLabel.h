#pragma once

#include <QLabel>

namespace forms {

// A line that may be longer than its place, as with paths in it: its middle gives way, and its tool tip has it whole.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void ShowWhole(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Elide();

    QString whole_;
};

}  // namespace forms
