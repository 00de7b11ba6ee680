#include <QTemporaryDir>
#include <list>

#include "manager/ManagerWindow.h"
#include "manager/Start.h"
#include "support/ScreenCase.h"

using drivers::ScreenCase;
using drivers::Step;
using namespace Qt::StringLiterals;

namespace {

// `manager` starts the owner's program in the place of the till: its login, or the window where none is asked for.
// `page CLASS` goes on in one of its pages, and starts it before where that has not been done.
void StartManager(ScreenCase& at) {
    at.Crash();
    manager::StartManager(at.Path({}));
    drivers::Settle();
    for (const auto& name : {u"ManagerLogin"_s, u"ManagerWindow"_s})
        if (auto* form = forms::FindForm(name)) return at.GoOnIn(*form);
    throw std::runtime_error("neither login nor window");
}

void GoToPage(ScreenCase& at, const QString& page, const Step&) {
    if (!forms::FindForm(u"ManagerWindow")) StartManager(at);
    dynamic_cast<manager::ManagerWindow&>(*forms::FindForm(u"ManagerWindow")).ShowPage(page);
    drivers::Settle();
    auto* form = forms::FindForm(page);
    if (!form) throw std::runtime_error("there is no such page");
    at.GoOnIn(*form);
}

[[maybe_unused]] const bool added = ScreenCase::AddWords({
    {u"manager"_s, [](ScreenCase& at, const QString&, const Step&) { StartManager(at); }},
    {u"page"_s, GoToPage},
    // `tail LIST`: how a list ends.
    {u"tail"_s,
     [](ScreenCase& at, const QString& rest, const Step& step) {
         const auto rows = drivers::List(at.Form(), rest);
         const auto lines = static_cast<qsizetype>(step.inner.size());
         ASSERT_GE(rows.size(), lines);
         for (qsizetype i = 0; i < lines; ++i)
             EXPECT_EQ(rows[rows.size() - lines + i].join(u'|'), step.inner[static_cast<size_t>(i)].text);
     }},
    // `elsewhere NAME`: a folder of the case that lies on another disk, as it were.
    {u"elsewhere"_s,
     [](ScreenCase& at, const QString& rest, const Step&) {
         static std::list<QTemporaryDir> disks;
         EXPECT_TRUE(QFile::link(disks.emplace_back().path(), at.Path(rest)));
     }},
});

}  // namespace

INSTANTIATE_SCREEN_CASES(Manager, u"manager-backup"_s, u"manager-drawer"_s, u"manager-goods"_s, u"manager-health"_s,
                         u"manager-labels"_s, u"manager-overview"_s, u"manager-prices"_s, u"manager-printers"_s,
                         u"manager-setup"_s, u"manager-start"_s);
