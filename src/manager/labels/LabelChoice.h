#pragma once

#include <QWidget>

#include "manager/labels/LabelPages.h"
#include "manager/labels/PagePreview.h"
#include "ui_LabelChoice.h"

namespace manager {

// The sheet that labels are printed on, and how they look there.
class LabelChoice : public QWidget {
    Q_OBJECT

public:
    explicit LabelChoice(QWidget* parent = nullptr);

    void SetLabels(std::vector<LabelCopies> labels);
    // Empty when the sheet can be printed on.
    QString Fault() const;
    std::shared_ptr<const LabelPages> Pages() const;

    // What was chosen last time, and for the next: labels.ini in the register's folder. A choice that can't be read or
    // kept is no reason to stop.
    void Recall(const QString& iniFile);
    void Remember(const QString& iniFile) const;

    Ui::LabelChoice ui;

Q_SIGNALS:
    void Changed();

private:
    upkeep::LabelSheet Sheet() const;
    std::shared_ptr<LabelPages> MakePages() const;
    void ShowSheet();
    void ShowPages();
    void TakePlace(QPointF place);

    std::vector<LabelCopies> labels_;
    bool isFilling_ = false;
};

// The page that a preview shows, in words, and whether it can be turned.
void ShowTurning(const PagePreview& preview, QLabel& told, QPushButton& before, QPushButton& next);

}  // namespace manager
