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
});

}  // namespace

INSTANTIATE_SCREEN_CASES(Manager, u"manager-goods"_s, u"manager-start"_s);
