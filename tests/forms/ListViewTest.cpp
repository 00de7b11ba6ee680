#include "forms/ListView.h"

#include <gmock/gmock.h>

#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>
#include <ctime>

#include "SampleForm.h"
#include "support/ScreenTest.h"
#include "values/Error.h"

using drivers::Keys;
using drivers::Settle;
using testing::ElementsAre;

namespace {

class ListViewTest : public drivers::ScreenTest {
protected:
    ListViewTest() {
        list.setObjectName(u"lv"_s);
        list.SetColumns({{u"Code"_s, Qt::AlignLeft, 100},
                         {u"Name"_s, Qt::AlignLeft, -1},
                         {u"Price"_s, Qt::AlignRight, 80},
                         {u"ID"_s, Qt::AlignLeft, 0}});
        list.resize(500, 300);
    }
    void Fill(int rows) {
        for (int i = 0; i < rows; ++i) list.Add({QString::number(i), u"Name %1"_s.arg(i)});
    }
    forms::ListView list;
};

TEST_F(ListViewTest, CellsAreTexts) {
    EXPECT_EQ(list.Add({u"1"_s, u"Milk"_s, u"2.35"_s, u"17"_s}), 0);
    EXPECT_EQ(list.Add({u"2"_s}), 1);
    list.SetText(1, 2, u"3.00"_s);
    EXPECT_EQ(list.Text(0, 3), u"17"_s);
    EXPECT_EQ(list.Text(1, 1), QString());
    EXPECT_EQ(list.Text(1, 2), u"3.00"_s);
    EXPECT_EQ(list.Find(u"2"), 1);
    EXPECT_EQ(list.Find(u"22"), -1);
    for (const auto& [row, column] : {std::pair{-1, 0}, {2, 0}, {0, -1}, {0, 4}})
        EXPECT_EQ(list.Text(row, column), QString()) << row << ',' << column;
    list.SetText(7, 0, u"x"_s);
    list.Remove(7);
    EXPECT_EQ(list.Count(), 2);
    list.Clear();
    EXPECT_EQ(list.Count(), 0);
}

TEST_F(ListViewTest, AfterARemovalTheNeighbourIsSelected) {
    const struct {
        int selected, removed, expected;
        const char16_t* text;
    } cases[] = {{1, 1, 1, u"2"}, {3, 3, 2, u"2"}, {2, 0, 1, u"2"}, {0, 2, 0, u"0"}, {-1, 0, -1, u""}};
    for (const auto& [selected, removed, expected, text] : cases) {
        list.Clear();
        Fill(4);
        list.Select(selected);
        list.Remove(removed);
        EXPECT_EQ(list.Selected(), expected) << selected << " without " << removed;
        EXPECT_EQ(list.Text(list.Selected()), QString::fromUtf16(text));
    }
    list.Clear();
    Fill(1);
    list.Select(0);
    list.Remove(0);
    EXPECT_EQ(list.Selected(), -1);
}

TEST_F(ListViewTest, ClicksBesideTheRowsKeepTheSelection) {
    Fill(3);
    list.show();
    drivers::ClickRow(&list, 1);
    EXPECT_EQ(list.Selected(), 1);
    drivers::ClickRow(&list, -1);
    EXPECT_EQ(list.Selected(), 1);
    QWidget* rows = list.viewport();
    QTest::mouseClick(rows, Qt::LeftButton, Qt::ControlModifier, QPoint(10, 34 + 10));
    EXPECT_EQ(list.Selected(), 1);
    list.Select(-1);
    EXPECT_EQ(list.Selected(), -1);
}

TEST_F(ListViewTest, TheDownKeySelectsTheFirstRowOfAListWithoutSelection) {
    frmSample form;
    form.lv1->Add({u"a"_s});
    form.lv1->Add({u"b"_s});
    form.Show();
    Settle();
    Keys(u"{Tab}{Tab}{Tab}");
    EXPECT_EQ(form.lv1->Selected(), -1);
    Keys(u"{Down}");
    EXPECT_EQ(form.lv1->Selected(), 0);
    Keys(u"{Down}{Down}");
    EXPECT_EQ(form.lv1->Selected(), 1);
    Keys(u"{Home}");
    EXPECT_EQ(form.lv1->Selected(), 0);
}

TEST_F(ListViewTest, RowsAreReadableWhileFillingAndAppearTogether) {
    list.Add({u"first"_s});
    list.Select(0);
    QSignalSpy inserted(list.model(), &QAbstractItemModel::rowsInserted);
    list.BeginFill();
    Fill(10);
    EXPECT_EQ(list.Count(), 11);
    EXPECT_EQ(list.Text(10), u"9"_s);
    list.SetText(10, 1, u"changed"_s);
    EXPECT_EQ(inserted.count(), 0);
    list.EndFill();
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(list.model()->rowCount(), 11);
    EXPECT_EQ(list.Text(10, 1), u"changed"_s);
    EXPECT_EQ(list.Selected(), 0);

    list.BeginFill();
    list.Clear();
    Fill(3);
    list.Select(2);
    EXPECT_EQ(list.Selected(), 2);
    list.Remove(0);
    list.EndFill();
    EXPECT_EQ(list.model()->rowCount(), 2);
    EXPECT_EQ(list.Text(list.Selected()), u"2"_s);
}

TEST_F(ListViewTest, AHundredThousandRowsFillAndPaintAtOnce) {
    list.show();
    Settle();
    // By the process's own time: others may hold the machine meanwhile.
    const auto seconds = [begin = std::clock()] { return (std::clock() - begin) / CLOCKS_PER_SEC; };
    list.BeginFill();
    Fill(100'000);
    list.EndFill();
    list.Select(99'999);
    list.grab();
    EXPECT_LT(seconds(), 10);
    list.Clear();
    Fill(100'000);
    list.grab();
    EXPECT_LT(seconds(), 30) << "row by row";
}

TEST_F(ListViewTest, ColumnsShareTheWidth) {
    list.show();
    Settle();
    const QHeaderView* header = list.header();
    EXPECT_TRUE(header->isSectionHidden(3));
    EXPECT_EQ(header->sectionSize(0), 100);
    EXPECT_EQ(header->sectionSize(2), 80);
    EXPECT_EQ(header->length(), list.viewport()->width());
    list.resize(700, 300);
    Settle();
    EXPECT_EQ(header->length(), list.viewport()->width());
    EXPECT_EQ(header->sectionSize(0), 100);

    list.Add({u"1"_s});
    EXPECT_EQ(list.visualRect(list.model()->index(0, 0)).height(), 40);
    EXPECT_FALSE(header->sectionsClickable());
}

// A hundred thousand rows of which those that were waited for are here; beyond them `fails` may stand.
class Rows : public forms::RowSource {
public:
    explicit Rows(int here, bool fails = false) : here_(here), fails_(fails) {}
    int WaitFor(int rows, std::chrono::milliseconds atMost) override {
        if (fails_ && rows > here_) throw values::Error(3043, u"The disk is gone."_s);
        if (rows > here_ && atMost.count() > 0) {
            ++waits;
            here_ = qMin(rows, All);
        }
        return here_;
    }
    bool IsWhole() const override { return here_ == All; }
    QString Text(int row, int column) const override {
        ++looks;
        return column != 2 ? QString::number(row) : row == 99'000 ? u"123456789012.00"_s : u"1.00"_s;
    }
    static constexpr int All = 100'000;
    static inline int looks = 0;
    static inline int waits = 0;

private:
    int here_;
    bool fails_;
};

TEST_F(ListViewTest, RowsOfASourceAreRowsLikeOthers) {
    list.resize(500, 300);
    list.show();
    Rows::looks = 0;
    list.ShowRows(std::make_unique<Rows>(Rows::All));
    EXPECT_EQ(list.Count(), 100'000);
    EXPECT_EQ(list.Selected(), 0);
    const int width = list.header()->sectionSize(2);
    list.Select(99'000);
    Settle();
    EXPECT_LT(Rows::looks, 1000) << "only what is seen is made a text";
    EXPECT_EQ(list.Text(99'000, 0), u"99000");
    EXPECT_GT(list.header()->sectionSize(2), width) << "the long number is cut";

    list.SetText(50'000, 1, u"written"_s);
    EXPECT_EQ(list.Text(50'000, 1), u"written");
    EXPECT_EQ(list.Add({u"added"_s}), 100'000);
    list.Remove(0);
    EXPECT_EQ(list.Text(49'999, 1), u"written");
    EXPECT_EQ(list.Text(99'999, 0), u"added");
}

TEST_F(ListViewTest, NobodyTakesRowsThatAreStillComingInForAll) {
    list.show();
    const auto showAPart = [this](int here) {
        list.ShowRows(std::make_unique<Rows>(here));
        Settle();
        EXPECT_TRUE(list.visualRect(list.model()->index(qMax(here, 1) - 1, 0)).isValid());
    };
    showAPart(300);
    EXPECT_EQ(list.model()->rowCount(), Rows::All);
    showAPart(300);
    EXPECT_EQ(list.Count(), Rows::All);
    showAPart(300);
    EXPECT_EQ(list.model()->index(99'999, 0).data(), u"99999"_s);
    showAPart(300);
    EXPECT_EQ(list.Find(u"70000"), 70'000);
    showAPart(300);
    list.setFocus();
    Keys(u"{Down}{Down}");
    EXPECT_EQ(list.Selected(), 2);
    Keys(u"{End}");
    EXPECT_EQ(list.Selected(), 99'999);
    list.ShowRows(std::make_unique<Rows>(0));
    Rows::waits = 0;
    Settle();
    EXPECT_EQ(Rows::waits, 0) << "nothing is waited for to paint the list";
    EXPECT_EQ(list.SelectedText(), u"0") << "the first row is waited for";

    drivers::Boxes boxes;
    list.ShowRows(std::make_unique<Rows>(300, true));
    boxes.Expect(u"3043The disk is gone."_s);
    EXPECT_EQ(list.Count(), 0);
    Settle();
}

}  // namespace
