#include "masterdata/clicktable/ClickTable.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QTabBar>
#include <QVBoxLayout>

#include "forms/Swipe.h"
#include "forms/Theme.h"
#include "values/Error.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int FewestColumns = 4;
constexpr int MostColumns = 6;
constexpr int PageMargin = 6;
constexpr int Gap = 5;

int RowsFor(int columns) {
    return (ClickTable::ButtonsPerTab + columns - 1) / columns;
}

}  // namespace

ClickTable::ClickTable(QWidget* parent) : QWidget(parent), tabs_(new CategoryTabs(this)) {
    setObjectName(u"clickTable"_s);
    tabs_->setObjectName(u"SSTab1"_s);
    tabs_->setFocusPolicy(Qt::NoFocus);
    tabs_->tabBar()->setFocusPolicy(Qt::NoFocus);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(tabs_);

    for (int tab = 0; tab < TabCount; ++tab) {
        auto* page = new QWidget;
        auto* grid = new QGridLayout(page);
        grid->setContentsMargins(PageMargin, PageMargin, PageMargin, PageMargin);
        grid->setSpacing(Gap);
        for (int place = 0; place < ButtonsPerTab; ++place) {
            const int index = tab * ButtonsPerTab + place;
            auto* button = new TouchButton;
            button->setObjectName(u"Command2_%1"_s.arg(index));
            button->installEventFilter(this);
            connect(button, &TouchButton::clicked, this, [this, index] { Q_EMIT Clicked(index); });
            buttons_[static_cast<size_t>(index)] = button;
        }
        tabs_->addTab(page, {});
        SetTabCaption(tab, QString::number(tab + 1));
    }
    LayOut(FewestColumns);
    longPress_.setSingleShot(true);
    longPress_.setInterval(forms::LongPress);
    longPress_.callOnTimeout(this, &ClickTable::LongPressed);
    connect(tabs_, &QTabWidget::currentChanged, this, [this] {
        // Not on the page itself, where no key does anything.
        if (tabs_->currentWidget() == window()->focusWidget()) TakeFocus();
    });
}

void ClickTable::LayOut(int columns) {
    if (columns == columns_) return;
    columns_ = columns;
    for (int tab = 0; tab < TabCount; ++tab) {
        auto* grid = static_cast<QGridLayout*>(tabs_->widget(tab)->layout());
        for (int place = 0; place < ButtonsPerTab; ++place)
            grid->addWidget(Button(tab * ButtonsPerTab + place), place / columns, place % columns);
        for (int line = 0; line < ButtonsPerTab; ++line) {
            grid->setColumnStretch(line, line < columns ? 1 : 0);
            grid->setRowStretch(line, line < RowsFor(columns) ? 1 : 0);
        }
    }
}

// Where eight rows would be lower than a finger there are fewer, with more buttons each.
void ClickTable::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const int room = height() - tabs_->tabBar()->sizeHint().height() - 2 * PageMargin;
    const auto heightOf = [room](int columns) { return (room + Gap) / RowsFor(columns) - Gap; };
    int columns = FewestColumns;
    while (columns < MostColumns && heightOf(columns) < forms::Scaled(forms::FingerHeight)) ++columns;
    LayOut(columns);
}

void ClickTable::SetTabCaption(int tab, const QString& caption) {
    if (tab < 0 || tab >= TabCount)
        throw values::Error(values::IndexOutOfRange, tr("The click table has no tab %1.").arg(tab));
    tabs_->setTabText(tab, QString(caption).replace(u'&', u"&&"_s));
    tabs_->setTabToolTip(tab, caption);
    tabs_->widget(tab)->setObjectName(caption);
    tabs_->Share();
}

TouchButton* ClickTable::Button(int index) const {
    if (index < 0 || index >= ButtonCount)
        throw values::Error(values::IndexOutOfRange, tr("The click table has no button %1.").arg(index));
    return buttons_[static_cast<size_t>(index)];
}

void ClickTable::Clear() {
    for (TouchButton* button : buttons_) button->Clear();
}

void ClickTable::LetKeysIn() {
    tabs_->tabBar()->setFocusPolicy(Qt::TabFocus);
    for (TouchButton* button : buttons_) button->setFocusPolicy(Qt::TabFocus);
}

void ClickTable::TakeFocus() {
    if (!isEnabled()) return;
    const auto first = buttons_.begin() + tabs_->currentIndex() * ButtonsPerTab;
    const auto taken =
        std::find_if(first, first + ButtonsPerTab, [](auto* button) { return !button->Tag().isEmpty(); });
    (taken == first + ButtonsPerTab ? *first : *taken)->setFocus(Qt::ShortcutFocusReason);
}

int ClickTable::IndexOf(const QObject* button) const {
    const auto at = std::find(buttons_.begin(), buttons_.end(), button);
    return at == buttons_.end() ? -1 : static_cast<int>(at - buttons_.begin());
}

// True for the release of a finger that has been told of before.
bool ClickTable::MouseEvent(int index, const QMouseEvent& event) {
    if (event.type() != QEvent::MouseButtonRelease) {
        pressed_ = index;
        isSpent_ = false;
        if (event.button() == Qt::LeftButton) longPress_.start();
        return false;
    }
    longPress_.stop();
    const bool isOver = Button(index)->rect().contains(event.position().toPoint());
    pressed_ = -1;
    if (std::exchange(isSpent_, false)) {
        Button(index)->setDown(false);
        return true;
    }
    if (isOver) Q_EMIT MouseUp(index, event.button());
    return false;
}

// Where nobody asks for the right button a long press is a slow touch.
void ClickTable::LongPressed() {
    const bool isAsked = isSignalConnected(QMetaMethod::fromSignal(&ClickTable::MouseUp));
    if (pressed_ < 0 || !isAsked || !Button(pressed_)->isDown()) return;
    isSpent_ = true;
    Q_EMIT MouseUp(pressed_, Qt::RightButton);
}

// Enter is a touch, an arrow goes to the neighbour, PageUp and PageDown to the same place of another tab.
bool ClickTable::KeyPressed(int index, int key) {
    int tab = index / ButtonsPerTab;
    int place = index % ButtonsPerTab;
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Button(index)->click();
            return true;
        case Qt::Key_Left:
            --place;
            break;
        case Qt::Key_Right:
            ++place;
            break;
        case Qt::Key_Up:
            place -= columns_;
            break;
        case Qt::Key_Down:
            place += columns_;
            break;
        case Qt::Key_PageUp:
            --tab;
            break;
        case Qt::Key_PageDown:
            ++tab;
            break;
        default:
            return false;
    }
    if (tab < 0 || tab >= TabCount || place < 0 || place >= ButtonsPerTab) return true;
    tabs_->setCurrentIndex(tab);
    Button(tab * ButtonsPerTab + place)->setFocus(Qt::OtherFocusReason);
    return true;
}

bool ClickTable::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:  // the second of two fast touches
        case QEvent::MouseButtonRelease:
            break;
        default:
            return false;
    }
    const int index = IndexOf(watched);
    if (index < 0) return false;
    if (event->type() == QEvent::KeyPress) return KeyPressed(index, static_cast<const QKeyEvent&>(*event).key());
    if (MouseEvent(index, static_cast<const QMouseEvent&>(*event))) return true;
    return QWidget::eventFilter(watched, event);
}
