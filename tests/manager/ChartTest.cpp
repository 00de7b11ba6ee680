// The arithmetic of the charts: scales, what is hit, where the keys lead, and that the table has the same figures.

#include <QSignalSpy>
#include <QTest>

#include "manager/charts/ColumnChart.h"
#include "manager/charts/HeatMap.h"
#include "support/ScreenTest.h"
#include "support/ValueOf.h"

using namespace Qt::StringLiterals;
using drivers::MoneyOf;
using drivers::PlainText;
using manager::ColumnChart;
using manager::HeatMap;
using manager::Scale;
using values::Money;

namespace {

class ChartTest : public drivers::ScreenTest {
protected:
    static QString StepsOf(const char16_t* lowest, const char16_t* highest) {
        QStringList steps;
        for (const Money step :
             Scale(MoneyOf(QString::fromUtf16(lowest)), MoneyOf(QString::fromUtf16(highest))).Steps())
            steps << PlainText(step);
        return steps.join(u' ');
    }
    static void ShowChart(QWidget& chart) {
        chart.resize(600, 240);
        chart.show();
        chart.setFocus();
        drivers::Settle();
    }
    static QStringList RowsOf(const manager::ChartTable& table) {
        QStringList rows{table.headings.join(u'|')};
        for (const auto& row : table.rows) rows << table.TextsOf(row).join(u'|');
        return rows;
    }
};

TEST_F(ChartTest, AScaleHasAFewHandsomeStepsWithZeroAmongThem) {
    const struct {
        const char16_t *lowest, *highest, *steps;
    } cases[] = {{u"0", u"0", u"0 0.01"},
                 {u"0", u"1", u"0 0.2 0.4 0.6 0.8 1"},
                 {u"0", u"437.5", u"0 100 200 300 400 500"},
                 {u"20", u"101", u"0 50 100 150"},
                 {u"-30", u"-10", u"-30 -20 -10 0"},
                 {u"-5", u"12", u"-5 0 5 10 15"}};
    for (const auto& [lowest, highest, steps] : cases)
        EXPECT_EQ(StepsOf(lowest, highest).toStdString(), QString::fromUtf16(steps).toStdString());
    EXPECT_DOUBLE_EQ(Scale({}, Money::FromWhole(400)).PartOf(Money::FromWhole(100)), 0.25);
    EXPECT_DOUBLE_EQ(Scale(Money::FromWhole(-5), Money::FromWhole(12)).PartOf({}), 0.25);
    // What no shop takes is still painted.
    const Money most = Money::FromUnits(std::numeric_limits<qint64>::max());
    EXPECT_EQ(Scale(-most, most).PartOf(most), 1);
}

TEST_F(ChartTest, APlaceIsHitUpToItsEdgeAndLabelsAreLeftOutWhereTheyWouldTouch) {
    EXPECT_EQ(manager::PlaceIn(10, 100, 4, 9.9), -1);
    EXPECT_EQ(manager::PlaceIn(10, 100, 4, 10), 0);
    EXPECT_EQ(manager::PlaceIn(10, 100, 4, 59.9), 1);
    EXPECT_EQ(manager::PlaceIn(10, 100, 4, 109.9), 3);
    EXPECT_EQ(manager::PlaceIn(10, 100, 4, 110), -1);
    EXPECT_EQ(manager::PlaceIn(10, 100, 0, 50), -1);
    EXPECT_EQ(manager::EveryHowMany(100, 10, 10), 1);
    EXPECT_EQ(manager::EveryHowMany(100, 10, 25), 3);
}

TEST_F(ChartTest, KeysAndMouseReachTheBarsAndTheTableHasTheirFigures) {
    ColumnChart chart(nullptr);
    chart.Show({u"Days"_s,
                u"Taken"_s,
                u"Before"_s,
                {{u"1"_s, u"Mon"_s, Money::FromWhole(10), Money::FromWhole(5)},
                 {u"2"_s, u"Tue"_s, Money(), Money::FromWhole(7)},
                 {u"3"_s, u"Wed"_s, Money::FromWhole(30), Money()}}});
    ShowChart(chart);
    QSignalSpy chosen(&chart, &manager::Chart::Chosen);
    EXPECT_EQ(chart.Figure(), u"Mon: 10.00, before 5.00");
    drivers::Keys(u"{Right}{Right}{Right}");
    EXPECT_EQ(chart.Figure(), u"Wed: 30.00, before 0.00");
    EXPECT_EQ(chart.accessibleDescription(), chart.Figure());
    drivers::Keys(u"{Enter}{Home}{Enter}");
    // A low bar is hit anywhere above it, and what is left of the axis is no bar.
    EXPECT_EQ(chart.MarkAt({300, 100}), 1);
    EXPECT_EQ(chart.MarkAt({5, 100}), -1);
    QTest::mouseClick(&chart, Qt::LeftButton, {}, {560, 200});
    // A finger that came down on one and is lifted from another swipes.
    QTest::mousePress(&chart, Qt::LeftButton, {}, {560, 200});
    QTest::mouseRelease(&chart, Qt::LeftButton, {}, {300, 200});
    QList<int> marks;
    for (const auto& arguments : chosen) marks << arguments[0].toInt();
    EXPECT_EQ(marks, QList<int>({2, 0, 2}));
    EXPECT_EQ(RowsOf(chart.Table()),
              QStringList({u"Days|Taken|Before"_s, u"Mon|10.00|5.00"_s, u"Tue|0.00|7.00"_s, u"Wed|30.00|0.00"_s}));
    chart.Show({u"Days"_s, u"Taken"_s, {}, {{u"1"_s, u"Mon"_s, Money(), Money()}}});
    EXPECT_EQ(chart.Marks(), 0);
    EXPECT_EQ(chart.Figure(), QString());
    drivers::Keys(u"{Right}{Enter}");
    EXPECT_EQ(chosen.count(), 3);
}

TEST_F(ChartTest, AHeatMapIsWalkedInBothDirectionsAndListsWhatWasSold) {
    HeatMap map(nullptr);
    HeatMap::Content content{u"Day"_s,
                             u"Hour"_s,
                             u"Taken"_s,
                             {u"Mon"_s, u"Tue"_s},
                             {u"M"_s, u"T"_s},
                             {u"8"_s, u"9"_s, u"10"_s},
                             {u"8"_s, u"9"_s, u"10"_s},
                             std::vector<Money>(6)};
    map.Show(content);
    EXPECT_EQ(map.Marks(), 0);
    content.cells[1] = Money::FromWhole(4);
    content.cells[5] = Money::FromWhole(9);
    map.Show(content);
    ShowChart(map);
    drivers::Keys(u"{Right}");
    EXPECT_EQ(map.Figure(), u"Mon, 9: 4.00");
    drivers::Keys(u"{Down}{Down}{Right}");
    EXPECT_EQ(map.Figure(), u"Tue, 10: 9.00");
    EXPECT_EQ(std::pair(map.RowOf(map.Current()), map.ColumnOf(map.Current())), std::pair(1, 2));
    EXPECT_EQ(map.MarkAt({580, 60}), 2);
    EXPECT_EQ(RowsOf(map.Table()), QStringList({u"Day|Hour|Taken"_s, u"Mon|9|4.00"_s, u"Tue|10|9.00"_s}));
}

}  // namespace
