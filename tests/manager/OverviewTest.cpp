// The overview of a demo shop of ten weeks beside what the till's own reports say of the same days.

#include <QRadioButton>

#include "core/dbModule.h"
#include "delivery/Delivery.h"
#include "delivery/Trade.h"
#include "forms/DateBox.h"
#include "output/Folder.h"
#include "reports/frmSales.h"
#include "reports/frmSalesProducts.h"
#include "reports/frmSalesTax.h"
#include "reports/frmTaxbyInvoice.h"
#include "store/StorePath.h"
#include "support/Engines.h"
#include "support/ScreenTest.h"
#include "support/ValueOf.h"
#include "upkeep/Overview.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using drivers::Get;
using values::CMoney;
using values::Money;

namespace {

const QDate Today(2026, 11, 24);
const upkeep::Days Chosen{{2026, 10, 15}, {2026, 11, 24}};

class OverviewTest : public drivers::ScreenTest {
protected:
    OverviewTest() {
        const QString shop = folder.filePath(u"shop"_s);
        delivery::MakeProgramFolder(shop, {.withDemo = true, .server = drivers::ServerForTest()});
        output::SetProgramFolder(shop);
        OpenMainStore();
        delivery::TradeForWeeks(MainStore(), Today);
    }
    ~OverviewTest() override { CloseStores(); }

    // A report's rows as the sums of a column by the key in another.
    template <typename Report>
    QMap<QString, Money> SumsOf(const QString& option, int key, int amount) {
        Report report;
        report.Show();
        drivers::Settle();
        if (!option.isEmpty()) Get<QRadioButton>(report, option)->click();
        Get<QDateEdit>(report, u"DTPicker1"_s)->setDate(Chosen.first);
        Get<QDateEdit>(report, u"DTPicker2"_s)->setDate(Chosen.last);
        Get<QAbstractButton>(report, u"Command1"_s)->click();
        const auto& list = *Get<forms::ListView>(report, u"lv1"_s);
        QMap<QString, Money> sums;
        for (int row = 0; row < list.Count(); ++row) sums[list.Text(row, key)] += CMoney(list.Text(row, amount));
        report.Unload();
        return sums;
    }

    upkeep::Overview overview_;
};

template <typename List, typename Amount>
QMap<QString, Money> ByKey(const List& list, Amount amount) {
    QMap<QString, Money> sums;
    for (const auto& each : list) sums[each.id] += amount(each);
    return sums;
}

TEST_F(OverviewTest, AgreesWithTheReportsOfTheTill) {
    overview_ = upkeep::ReadOverview(MainStore(), {Today, Chosen, {}});
    EXPECT_GT(overview_.takings.invoices, 500);

    EXPECT_EQ(ByKey(overview_.cashiers, [](const auto& each) { return each.takings.amounts.total; }),
              SumsOf<frmSales>(u"optStopa"_s, 0, 3));
    EXPECT_EQ(ByKey(overview_.taxes, [](const auto& each) { return each.amounts.total; }),
              SumsOf<frmSalesTax>(u"optStopa"_s, 0, 6));
    EXPECT_EQ(ByKey(overview_.taxes, [](const auto& each) { return each.amounts.tax; }),
              SumsOf<frmSalesTax>(u"optStopa"_s, 0, 5));
    QMap<QString, Money> goods, days, taxOfDays;
    Money ofGroups, ofHours;
    for (const auto& each : overview_.goods) goods[each.code] = each.total;
    for (const auto& [day, takings] : overview_.byDay) {
        days[values::Value(day).ToText()] = takings.amounts.total;
        taxOfDays[values::Value(day).ToText()] = takings.amounts.tax;
    }
    EXPECT_EQ(goods, SumsOf<frmSalesProducts>({}, 0, 4));
    EXPECT_EQ(days, SumsOf<frmTaxbyInvoice>(u"optDatum"_s, 1, 5));
    EXPECT_EQ(taxOfDays, SumsOf<frmTaxbyInvoice>(u"optDatum"_s, 1, 4));
    for (const auto& group : overview_.groups) ofGroups += group.takings.amounts.total;
    for (const auto& hours : overview_.byWeekday)
        for (const Money hour : hours) ofHours += hour;
    EXPECT_EQ(ofGroups, overview_.takings.amounts.total);
    EXPECT_EQ(ofHours, overview_.takings.amounts.total);
}

TEST_F(OverviewTest, ComesInMonthByMonthAndCanBeLeft) {
    std::vector<qint64> read;
    const auto whole = upkeep::ReadOverview(MainStore(), {Today, {}, {}}, [&](const upkeep::Overview& overview) {
        read.push_back(overview.daysRead);
        return true;
    });
    EXPECT_EQ(whole.days, upkeep::Days({2026, 9, 14}, Today));
    EXPECT_EQ(read, std::vector<qint64>({24, 55, 72}));
    const auto left = upkeep::ReadOverview(MainStore(), {Today, {}, {}}, [](const auto&) { return false; });
    EXPECT_EQ(left.daysRead, 24);
    const auto november = upkeep::ReadOverview(MainStore(), {Today, {{2026, 11, 1}, Today}, {}});
    EXPECT_EQ(left.takings, november.takings);
    EXPECT_LT(left.takings.invoices, whole.takings.invoices);
}

}  // namespace
