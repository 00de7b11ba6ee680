#include "support/ScreenCase.h"

#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include "forms/Controls.h"
#include "player/Input.h"

using drivers::Get;
using drivers::ScreenCase;
using drivers::Step;
using namespace Qt::StringLiterals;

namespace {

// Names of what can't be chosen: switched-off menus and entries.
void SeeSwitchedOff(ScreenCase& at, const QString& rest, const Step&) {
    at.Form();
    QStringList names;
    for (const auto* menu : mdiORVA::Window().menuBar()->findChildren<QMenu*>())
        if (!menu->menuAction()->isEnabled()) names << menu->objectName();
    for (const auto* action : mdiORVA::Window().findChildren<QAction*>())
        if (!action->objectName().isEmpty() && !action->isEnabled()) names << action->objectName();
    names.sort();
    EXPECT_EQ(names.join(u' '), rest);
}

[[maybe_unused]] const bool added = ScreenCase::AddWords({
    {u"switched-off"_s, SeeSwitchedOff},
    {u"close-window"_s,
     [](auto& at, auto&, auto&) {
         at.Form();
         EXPECT_FALSE(mdiORVA::Window().close());
         EXPECT_TRUE(mdiORVA::Window().isVisible());
     }},
    // A text that no key types.
    {u"put"_s, [](auto& at, auto& rest,
                  auto&) { forms::SetText(Get<QWidget>(at.Form(), rest.section(u' ', 0, 0)), rest.section(u' ', 1)); }},
    // A timer's seconds pass at once, a minute of them and more.
    {u"hurry"_s,
     [](auto& at, auto& rest, auto&) {
         Get<QTimer>(at.Form(), rest)->setInterval(0);
         for (int second = 0; second < 100; ++second) drivers::Settle();
     }},
});

}  // namespace

INSTANTIATE_SCREEN_CASES(Core, u"login"_s, u"backup-notice"_s);
