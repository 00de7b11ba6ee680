#pragma once

#include <QTimer>
#include <array>

#include "masterdata/clicktable/CategoryTabs.h"
#include "masterdata/clicktable/TouchButton.h"
#include "store/Schema.h"

// The grid of touch buttons that till and set-up show: the tab strip SSTab1 with ten tabs, 32 buttons to a tab, the
// array Command2 from 0 to 319 in the order of the tabs.
class ClickTable : public QWidget {
    Q_OBJECT

public:
    static constexpr int TabCount = 10;
    static constexpr int ButtonsPerTab = store::PlacesPerTab;
    static constexpr int ButtonCount = TabCount * ButtonsPerTab;

    explicit ClickTable(QWidget* parent = nullptr);

    QTabWidget* Tabs() const { return tabs_; }
    void SetTabCaption(int tab, const QString& caption);
    QString TabCaption(int tab) const { return tabs_->tabToolTip(tab); }
    // A button by its index; an index that has no button is an error of its own (9).
    TouchButton* Button(int index) const;
    // Every button free, without caption and picture.
    void Clear();
    // For a screen where nobody scans: the Tab key reaches tabs and buttons. The arrow keys move among these.
    void LetKeysIn();
    // The focus goes to the first button of the tab in front that has something on it.
    void TakeFocus();

Q_SIGNALS:
    void Clicked(int index);
    // A mouse button was released over a touch button; a finger that stays counts as the right one.
    void MouseUp(int index, Qt::MouseButton button);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void LayOut(int columns);
    bool KeyPressed(int index, int key);
    bool MouseEvent(int index, const QMouseEvent& event);
    void LongPressed();
    int IndexOf(const QObject* button) const;

    CategoryTabs* tabs_;
    int columns_ = 0;
    QTimer longPress_;
    int pressed_ = -1;      // the button that a finger is on
    bool isSpent_ = false;  // it was told as a long press
    std::array<TouchButton*, ButtonCount> buttons_{};
};
