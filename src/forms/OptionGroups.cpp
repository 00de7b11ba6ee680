#include "forms/OptionGroups.h"

#include <QButtonGroup>
#include <QFocusEvent>
#include <QRadioButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

QList<QAbstractButton*> GroupOf(const QRadioButton& option) {
    if (option.group()) return option.group()->buttons();
    const auto siblings = option.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
    return {siblings.begin(), siblings.end()};
}

QAbstractButton* ChosenIn(const QList<QAbstractButton*>& group) {
    const auto chosen = std::ranges::find_if(group, &QAbstractButton::isChecked);
    return chosen == group.end() ? nullptr : *chosen;
}

bool IsByTheWay(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ActiveWindowFocusReason;
}

class OptionFocus : public QObject {
public:
    explicit OptionFocus(QRadioButton* option) : QObject(option), option_(*option) {
        setObjectName(u"optionFocus"_s);
        option->installEventFilter(this);
        connect(option, &QRadioButton::toggled, this, &OptionFocus::LeadToChosen);
        LeadToChosen();
    }

    bool eventFilter(QObject*, QEvent* event) override {
        // A press of the mouse, or who goes to this one by its name, is about to choose it.
        if (event->type() == QEvent::FocusIn && IsByTheWay(static_cast<QFocusEvent*>(event)->reason())) LeadToChosen();
        return false;
    }

private:
    void LeadToChosen() {
        const auto group = GroupOf(option_);
        QAbstractButton* chosen = ChosenIn(group);
        const QWidget* focused = option_.window()->focusWidget();
        for (QAbstractButton* option : group) {
            option->setFocusPolicy(chosen && option != chosen ? Qt::ClickFocus : Qt::StrongFocus);
            if (chosen && option != chosen && option == focused) chosen->setFocus();
        }
    }

    const QRadioButton& option_;
};

}  // namespace

void KeepFocusOnChosenOptions(const QWidget& form) {
    for (auto* option : form.findChildren<QRadioButton*>())
        if (!option->findChild<QObject*>(u"optionFocus"_s)) new OptionFocus(option);
}

}  // namespace forms
