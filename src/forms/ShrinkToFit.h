#pragma once

#include <QLineEdit>

namespace forms {

// Keeps a figure whole: while its text is too wide for the box, the box takes a smaller size of its role's type. The
// style sheet has the sizes, by the property "fit" from 0 (as the role has it) to 3.
class ShrinkToFit : public QObject {
public:
    explicit ShrinkToFit(QLineEdit* box);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Fit();
    QLineEdit* box_;
    int step_ = 0;
};

}  // namespace forms
