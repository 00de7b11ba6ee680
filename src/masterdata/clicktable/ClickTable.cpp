#include "masterdata/clicktable/ClickTable.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QMouseEvent>
#include <QTabBar>
#include <QVBoxLayout>

#include "values/Error.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ButtonsPerRow = 4;

}  // namespace

ClickTable::ClickTable(QWidget* parent) : QWidget(parent), tabs_(new QTabWidget(this)) {
    setObjectName(u"clickTable"_s);
    tabs_->setObjectName(u"SSTab1"_s);
    tabs_->setUsesScrollButtons(false);
    tabs_->setElideMode(Qt::ElideRight);
    tabs_->tabBar()->setExpanding(false);
    tabs_->tabBar()->setProperty("role", u"narrow"_s);
    tabs_->setFocusPolicy(Qt::NoFocus);
    tabs_->tabBar()->setFocusPolicy(Qt::NoFocus);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(tabs_);

    for (int tab = 0; tab < TabCount; ++tab) {
        auto* page = new QWidget;
        auto* grid = new QGridLayout(page);
        grid->setContentsMargins(8, 8, 8, 8);
        grid->setSpacing(6);
        for (int place = 0; place < ButtonsPerTab; ++place) {
            const int index = tab * ButtonsPerTab + place;
            auto* button = new TouchButton;
            button->setObjectName(u"Command2_%1"_s.arg(index));
            button->installEventFilter(this);
            connect(button, &TouchButton::clicked, this, [this, index] { Q_EMIT Clicked(index); });
            grid->addWidget(button, place / ButtonsPerRow, place % ButtonsPerRow);
            buttons_[static_cast<size_t>(index)] = button;
        }
        for (int column = 0; column < ButtonsPerRow; ++column) grid->setColumnStretch(column, 1);
        tabs_->addTab(page, {});
        SetTabCaption(tab, QString::number(tab + 1));
    }
}

void ClickTable::SetTabCaption(int tab, const QString& caption) {
    if (tab < 0 || tab >= TabCount)
        throw values::Error(values::IndexOutOfRange, u"The click table has no tab %1."_s.arg(tab));
    tabs_->setTabText(tab, QString(caption).replace(u'&', u"&&"_s));
    tabs_->setTabToolTip(tab, caption);
    tabs_->widget(tab)->setObjectName(caption);
}

TouchButton* ClickTable::Button(int index) const {
    if (index < 0 || index >= ButtonCount)
        throw values::Error(values::IndexOutOfRange, u"The click table has no button %1."_s.arg(index));
    return buttons_[static_cast<size_t>(index)];
}

void ClickTable::Clear() {
    for (TouchButton* button : buttons_) button->Clear();
}

void ClickTable::LetKeysIn() {
    tabs_->tabBar()->setFocusPolicy(Qt::TabFocus);
    for (int tab = 0; tab < TabCount; ++tab) {
        // Within a group the arrow keys go by where the buttons lie.
        auto* page = new QButtonGroup(this);
        page->setExclusive(false);
        for (int place = 0; place < ButtonsPerTab; ++place) {
            TouchButton* button = Button(tab * ButtonsPerTab + place);
            button->setFocusPolicy(Qt::TabFocus);
            page->addButton(button);
        }
    }
}

bool ClickTable::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto& release = static_cast<const QMouseEvent&>(*event);
        const auto at = std::find(buttons_.begin(), buttons_.end(), watched);
        if (at != buttons_.end() && (*at)->rect().contains(release.position().toPoint()))
            Q_EMIT MouseUp(static_cast<int>(at - buttons_.begin()), release.button());
    }
    return QWidget::eventFilter(watched, event);
}
