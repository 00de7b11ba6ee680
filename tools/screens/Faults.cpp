#include "screens/Faults.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>
#include <QTreeView>

#include "masterdata/clicktable/TouchButton.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// What fonts and borders may differ by.
constexpr int Tolerance = 2;
constexpr int PaddingOfHeading = 20;  // both sides, a little less than the style leaves

class Looker {
public:
    explicit Looker(const QWidget& window) : window_(window) {}

    QStringList Look() {
        const QRect screen = window_.screen()->geometry();
        if (window_.width() > screen.width() || window_.height() > screen.height())
            Tell(window_, u"is larger than its screen"_s);
        for (const QWidget* control : window_.findChildren<QWidget*>())
            if (control->isVisible() && control->window() == &window_) LookAt(*control);
        for (const QMenu* menu : window_.findChildren<QMenu*>()) LookAtEntries(menu->actions());
        if (const auto* bar = window_.findChild<QMenuBar*>()) LookAtEntries(bar->actions());
        return faults_;
    }

private:
    void LookAt(const QWidget& control) {
        LookWhetherItIsInside(control);
        LookAtAccelerator(control);
        LookAtTexts(control);
        LookAtNeighbours(control);
        LookForName(control);
    }

    // What a scroll area holds can be brought into view, but for what lies beside it without a bar.
    void LookWhetherItIsInside(const QWidget& control) {
        if (control.parentWidget() == &window_ && control.isWindow()) return;
        if (const auto* area = qobject_cast<const QScrollArea*>(&control);
            area && area->widget() && area->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff &&
            area->widget()->width() > area->viewport()->width() + Tolerance)
            Tell(*area->parentWidget(), u"is narrower than what it holds"_s);
        for (const QWidget* around = control.parentWidget(); around && around != &window_;
             around = around->parentWidget())
            if (qobject_cast<const QAbstractScrollArea*>(around)) return;
        const QRect place(control.mapTo(&window_, QPoint()), control.size());
        if (!window_.rect().adjusted(-Tolerance, -Tolerance, Tolerance, Tolerance).contains(place))
            Tell(control, u"reaches beyond its window"_s);
    }

    // Two of one letter, and the key goes from one to the other instead of doing something.
    void LookAtAccelerator(const QWidget& control) {
        const auto* label = qobject_cast<const QLabel*>(&control);
        if (label && !label->buddy()) return;
        const auto* button = qobject_cast<const QAbstractButton*>(&control);
        if (!label && !button) return;
        const auto key = QKeySequence::mnemonic(label ? label->text() : button->text());
        if (key.isEmpty() || qobject_cast<const TouchButton*>(button)) return;
        const QString other = accelerators_.value(key);
        if (other.isEmpty())
            accelerators_[key] = control.objectName();
        else
            Tell(control, u"has %1 as %2 has"_s.arg(key.toString(), other));
    }

    void LookAtEntries(const QList<QAction*>& entries) {
        QMap<QKeySequence, QString> seen;
        for (const QAction* entry : entries) {
            const auto key = QKeySequence::mnemonic(entry->text());
            if (key.isEmpty()) continue;
            if (seen.contains(key))
                faults_ << u"%1: the entries %2 and %3 have %4"_s.arg(window_.objectName(), seen[key],
                                                                      entry->objectName(), key.toString());
            seen[key] = entry->objectName();
        }
    }

    void LookAtTexts(const QWidget& control) {
        if (const auto* label = qobject_cast<const QLabel*>(&control)) {
            if (label->text().isEmpty() || label->textFormat() == Qt::RichText) return;
            const bool isHigh =
                label->wordWrap() && label->heightForWidth(label->width()) > label->height() + Tolerance;
            const bool isWide = !label->wordWrap() && label->sizeHint().width() > label->width() + Tolerance;
            if (isHigh || isWide) Tell(control, u"is cut: "_s + label->text());
        } else if (qobject_cast<const QCheckBox*>(&control) || qobject_cast<const QRadioButton*>(&control)) {
            if (control.sizeHint().width() > control.width() + Tolerance) Tell(control, u"is cut"_s);
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
            if (qobject_cast<const TouchButton*>(button)) return;
            const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
            const int icon = button->icon().isNull() ? 0 : button->iconSize().width() + 4;
            if (!button->text().isEmpty() && text.width() + icon > button->width() - 2 * Tolerance)
                Tell(control, u"is cut: "_s + button->text());
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                if (!tabs->rect().contains(tabs->tabRect(tab)))
                    Tell(control, u"has a tab beyond it: "_s + tabs->tabText(tab));
        } else if (const auto* list = qobject_cast<const QTreeView*>(&control)) {
            LookAtHeadings(*list);
        }
    }

    void LookAtHeadings(const QTreeView& list) {
        const QHeaderView& heads = *list.header();
        if (list.isHeaderHidden()) return;
        for (int column = 0; column < heads.count(); ++column) {
            if (heads.isSectionHidden(column)) continue;
            const QString text = list.model()->headerData(column, Qt::Horizontal).toString();
            const QRect room(0, 0, heads.sectionSize(column) - PaddingOfHeading, heads.height());
            if (!room.contains(heads.fontMetrics().boundingRect(room, Qt::TextWordWrap, text)))
                Tell(list, u"has a heading that is cut: "_s + text);
        }
    }

    void LookAtNeighbours(const QWidget& control) {
        const QWidget* parent = control.parentWidget();
        if (!parent || qobject_cast<const QAbstractScrollArea*>(parent)) return;
        for (const QWidget* other : parent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (other <= &control || !other->isVisible() || other->isWindow()) continue;
            const QRect common = other->geometry() & control.geometry();
            if (common.width() > Tolerance && common.height() > Tolerance && !Belongs(control) && !Belongs(*other))
                Tell(control, u"lies over "_s + NameOf(*other));
        }
    }

    // Parts that Qt itself lays over one another.
    static bool Belongs(const QWidget& control) {
        return control.objectName().startsWith(u"qt_") || control.parentWidget()->inherits("QTabWidget") ||
               control.parentWidget()->inherits("QStackedWidget") || control.inherits("QRubberBand") ||
               control.testAttribute(Qt::WA_TransparentForMouseEvents);
    }

    void LookForName(const QWidget& control) {
        const bool isControl = qobject_cast<const QAbstractButton*>(&control) ||
                               qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QComboBox*>(&control) ||
                               qobject_cast<const QAbstractSpinBox*>(&control) ||
                               (control.focusPolicy() & Qt::TabFocus) != 0;
        const bool isPart = control.objectName().startsWith(u"qt_") ||
                            qobject_cast<QComboBox*>(control.parentWidget()) || control.inherits("QToolBarExtension") ||
                            qobject_cast<QAbstractSpinBox*>(control.parentWidget());
        if (!isControl || isPart) return;
        auto* reader = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&control));
        if (!reader || reader->role() == QAccessible::NoRole) return Tell(control, u"has no role"_s);
        if (reader->text(QAccessible::Name).isEmpty()) Tell(control, u"has no name for a screen reader"_s);
    }

    static QString NameOf(const QWidget& control) {
        return control.objectName().isEmpty() ? QString::fromLatin1(control.metaObject()->className())
                                              : control.objectName();
    }

    void Tell(const QWidget& control, const QString& fault) {
        faults_ << u"%1: %2 %3"_s.arg(NameOf(window_), NameOf(control), fault);
    }

    const QWidget& window_;
    QStringList faults_;
    QMap<QKeySequence, QString> accelerators_;  // and whose they are
};

}  // namespace

QStringList FaultsOf(const QWidget& window) {
    return Looker(window).Look();
}

}  // namespace screens
