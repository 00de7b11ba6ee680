#include <QLineEdit>

#include "manager/ManagerWindow.h"
#include "manager/Start.h"
#include "store/Creation.h"
#include "support/Rows.h"
#include "support/ScreenCase.h"
#include "support/Server.h"
#include "support/ValueOf.h"
#include "upkeep/Overview.h"
#include "upkeep/server/ServerAddress.h"
#include "values/Clock.h"

using drivers::ScreenCase;
using drivers::Step;
using namespace Qt::StringLiterals;

namespace {

// `manager` starts the owner's program in the place of the till: its login, or the window where none is asked for.
// `page CLASS` goes on in one of its pages, and starts it before where that has not been done; it is there whole.
// `ready` waits until it is so again. `figures FIRST LAST PART`, or `figures all PART`, has the lines under it.
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
    auto* form = dynamic_cast<manager::Page*>(forms::FindForm(page));
    if (!form) throw std::runtime_error("there is no such page");
    while (form->IsBusy()) drivers::Settle();
    at.GoOnIn(*form);
}

void WaitUntilReady(ScreenCase& at, const QString&, const Step&) {
    const auto& page = dynamic_cast<const manager::Page&>(at.Form());
    while (page.IsBusy()) drivers::Settle();
}

QString Row(std::initializer_list<QString> cells) {
    return QStringList(cells).join(u'|');
}

QString Told(const upkeep::Takings& takings) {
    return Row({drivers::PlainText(takings.amounts.total), drivers::PlainText(takings.amounts.tax),
                QString::number(takings.invoices)});
}

QStringList DaysTold(const upkeep::TakingsByDay& days) {
    QStringList rows;
    for (const auto& [day, takings] : days) rows << Row({day.toString(Qt::ISODate), Told(takings)});
    return rows;
}

template <typename List, typename Tell>
QStringList Each(const List& list, Tell tell) {
    QStringList rows;
    for (const auto& each : list) rows << tell(each);
    return rows;
}

QString GoodsTold(const upkeep::GoodsTakings& goods) {
    return Row({goods.code, goods.name, drivers::PlainText(goods.pieces), drivers::PlainText(goods.total)});
}

QStringList PartOf(const upkeep::Overview& overview, const QString& part) {
    using drivers::PlainText;
    const auto& standing = overview.standing;
    const auto named = [](const auto& each) { return Row({each.id, each.name, Told(each.takings)}); };
    QStringList hours;
    for (size_t day = 0; day < 7; ++day)
        for (size_t hour = 0; hour < 24; ++hour)
            if (const auto amount = overview.byWeekday[day][hour]; amount != values::Money())
                hours << Row({QString::number(day + 1), QString::number(hour), PlainText(amount)});
    const QMap<QString, QStringList> parts{
        {u"range"_s, {overview.days.first.toString(Qt::ISODate) + u' ' + overview.days.last.toString(Qt::ISODate)}},
        {u"standing"_s,
         {u"today "_s + Told(standing.today), u"week before "_s + Told(standing.weekBefore),
          u"mean %1 of %2"_s.arg(PlainText(standing.weekdayMean)).arg(standing.weekdays),
          u"month "_s + Told(standing.month), u"month before "_s + Told(standing.monthBefore),
          u"to date "_s + Told(standing.monthBeforeToDate)}},
        {u"takings"_s, {Told(overview.takings)}},
        {u"days"_s, DaysTold(overview.byDay)},
        {u"before"_s, DaysTold(overview.before)},
        {u"hours"_s, hours},
        {u"goods"_s, Each(overview.goods, GoodsTold)},
        {u"idle"_s, Each(overview.idle, GoodsTold)},
        {u"groups"_s, Each(overview.groups, named)},
        {u"cashiers"_s, Each(overview.cashiers, named)},
        {u"taxes"_s, Each(overview.taxes,
                          [](const auto& tax) {
                              return Row({tax.id, tax.name, PlainText(tax.percent), PlainText(tax.amounts.total),
                                          PlainText(tax.amounts.tax)});
                          })},
        {u"running-out"_s, Each(overview.runningOut,
                                [](const auto& each) {
                                    return Row({each.goods.code, PlainText(each.stock), PlainText(each.goods.pieces),
                                                QString::number(each.days)});
                                })},
    };
    if (!parts.contains(part)) throw std::runtime_error("there is no such part");
    return parts[part];
}

void CheckFigures(ScreenCase& at, const QString& rest, const Step& step) {
    const QStringList words = rest.split(u' ');
    const auto day = [&](qsizetype word) { return QDate::fromString(words[word], Qt::ISODate); };
    const bool isAll = words[0] == u"all";
    const upkeep::Days days = isAll ? upkeep::Days() : upkeep::Days{day(0), day(1)};
    const auto overview = upkeep::ReadOverview(*at.OpenMain(), {values::Today(), days, u"none"_s});
    const QStringList expected = Each(step.inner, [](const Step& line) { return line.text; });
    EXPECT_EQ(PartOf(overview, words.last()).join(u'\n').toStdString(), expected.join(u'\n').toStdString());
}

// `tail LIST`: how a list ends.
void CheckTail(ScreenCase& at, const QString& rest, const Step& step) {
    const auto rows = drivers::List(at.Form(), rest);
    const auto lines = static_cast<qsizetype>(step.inner.size());
    ASSERT_GE(rows.size(), lines);
    for (qsizetype i = 0; i < lines; ++i)
        EXPECT_EQ(rows[rows.size() - lines + i].join(u'|'), step.inner[static_cast<size_t>(i)].text);
}

// `restore TEXT`: the days are looked at, the shop is replaced, and a box that begins so tells of it.
void Restore(ScreenCase& at, const QString& text, const Step&) {
    at.Coming().ExpectForm(u"RestoreForm"_s,
                           [](QWidget& form) { drivers::Click(drivers::Get<QWidget>(form, u"cmdReplace")); });
    at.Coming().ExpectBeginning(text);
    drivers::Click(drivers::Get<QWidget>(at.Form(), u"cmdRestore"));
}

// `address`: the page of several tills is told of a place on a server that has no shop yet; of one that has been made
// there, with one product, where `with-a-shop` stands behind it.
void FillAddress(ScreenCase& at, const QString& rest, const Step&) {
    const auto place = store::Place::Server(drivers::Server::Running().NewShop());
    if (rest == u"with-a-shop") {
        store::Creation shop(place, store::MainSchema());
        drivers::AddRows(shop.Store(), u"Products"_s, {u"ProdCode=there"_s});
        shop.Finish();
    }
    qputenv("PGPASSFILE", at.Path(u"passwords"_s).toUtf8());
    const auto address = upkeep::ServerAddress::Of(place);
    const auto fill = [&at](const QString& box, const QString& text) {
        drivers::Get<QLineEdit>(at.Form(), box)->setText(text);
    };
    fill(u"txtServer"_s, address.host);
    fill(u"txtDatabase"_s, address.database);
    fill(u"txtUser"_s, address.user);
    fill(u"txtSchema"_s, address.schema);
}

[[maybe_unused]] const bool added = ScreenCase::AddWords(
    {
        {u"manager"_s, [](ScreenCase& at, const QString&, const Step&) { StartManager(at); }},
        {u"page"_s, GoToPage},
        {u"ready"_s, WaitUntilReady},
        {u"figures"_s, CheckFigures},
        {u"tail"_s, CheckTail},
        {u"restore"_s, Restore},
        {u"address"_s, FillAddress},
    },
    {u"figures"_s, u"tail"_s});

}  // namespace

INSTANTIATE_SCREEN_CASES(Manager, u"manager-backup"_s, u"manager-drawer"_s, u"manager-figures"_s, u"manager-goods"_s,
                         u"manager-health"_s, u"manager-labels"_s, u"manager-overview"_s, u"manager-printers"_s,
                         u"manager-reports"_s, u"manager-setup"_s, u"manager-start"_s, u"manager-tills"_s);
