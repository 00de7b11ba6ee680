#include "masterdata/clicktable/CategoryTabs.h"

#include <QTabBar>
#include <algorithm>
#include <numeric>

#include "forms/Controls.h"
#include "forms/Theme.h"
#include "forms/Tokens.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int WidePadding = 8;  // on each side of a caption
constexpr int NarrowPadding = 3;
constexpr int BetweenTabs = 3;
constexpr int NarrowestTab = 30;

class CategoryTabBar : public QTabBar {
public:
    using QTabBar::QTabBar;

    // The widths follow from the captions and the room; the look gives the height.
    QSize tabSizeHint(int tab) const override {
        QSize size = QTabBar::tabSizeHint(tab);
        if (tab < static_cast<int>(widths_.size())) size.setWidth(widths_[static_cast<size_t>(tab)]);
        return size;
    }
    QSize minimumTabSizeHint(int tab) const override { return tabSizeHint(tab); }
    QSize minimumSizeHint() const override { return {0, QTabBar::minimumSizeHint().height()}; }

    void Share(int room) {
        const auto& sizes = forms::TheTokens().TabSizes;
        size_t step = 0;
        for (; step + 1 < sizes.size(); ++step)
            if (Natural(sizes[step]); std::accumulate(widths_.begin(), widths_.end(), 0) <= room) break;
        Natural(sizes[step]);
        Cut(room);
        if (const QString fit = QString::number(step); property("fit").toString() != fit) {
            setProperty("fit", fit);
            forms::Restyle(this);
        }
        updateGeometry();
        // The bar lays its tabs out anew when one of their sizes may have changed, and at no other word.
        setIconSize(iconSize() == QSize(1, 1) ? QSize(2, 2) : QSize(1, 1));
    }

protected:
    void tabInserted(int) override { widths_.clear(); }

private:
    // What each caption needs in this size of type, as the chosen one has it.
    void Natural(int textSize) {
        QFont chosen = font();
        chosen.setPixelSize(textSize);
        chosen.setBold(true);
        const QFontMetrics metrics(chosen);
        const int padding = textSize == forms::TheTokens().TabSizes[0] ? WidePadding : NarrowPadding;
        widths_.clear();
        for (int tab = 0; tab < count(); ++tab)
            widths_.push_back(qMax(
                NarrowestTab, metrics.size(Qt::TextShowMnemonic, tabText(tab)).width() + 2 * padding + BetweenTabs));
    }

    // The longest are cut to one width, so that all fit.
    void Cut(int room) {
        int cap = *std::ranges::max_element(widths_);
        const auto taken = [&] {
            return std::accumulate(widths_.begin(), widths_.end(), 0,
                                   [&](int sum, int w) { return sum + qMin(w, cap); });
        };
        while (cap > NarrowestTab && taken() > room) --cap;
        for (int& width : widths_) width = qMin(width, cap);
    }

    std::vector<int> widths_;
};

}  // namespace

CategoryTabs::CategoryTabs(QWidget* parent) : QTabWidget(parent) {
    setTabBar(new CategoryTabBar);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideRight);
    tabBar()->setExpanding(false);
}

void CategoryTabs::Share() {
    if (count() > 0) static_cast<CategoryTabBar*>(tabBar())->Share(width());
}

void CategoryTabs::resizeEvent(QResizeEvent* event) {
    Share();
    QTabWidget::resizeEvent(event);
}
