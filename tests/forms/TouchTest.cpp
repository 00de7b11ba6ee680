#include <QDeadlineTimer>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include "forms/Form.h"
#include "forms/LongWork.h"
#include "player/Keys.h"
#include "support/ScreenTest.h"

using namespace Qt::StringLiterals;

namespace {

class ListForm : public forms::Form {
public:
    ListForm() : list(new forms::ListView(this)) {
        resize(400, 400);
        (new QVBoxLayout(this))->addWidget(list);
        list->SetColumns({{u"Code"_s}});
        for (int row = 0; row < 40; ++row) list->Add({QString::number(row)});
        OnMouseUp(list, Qt::LeftButton, &ListForm::Pressed);
        OnMouseUp(list, Qt::RightButton, &ListForm::PressedRight);
    }
    void Pressed() { pressed << list->Selected(); }
    void PressedRight() { pressedRight << list->Selected(); }

    forms::ListView* list;
    QList<int> pressed;
    QList<int> pressedRight;
};

class TouchTest : public drivers::ScreenTest {
protected:
    const std::unique_ptr<QPointingDevice> screen{QTest::createTouchDevice()};

    // A finger that comes down at the first place, goes through the others, and stays at the last one before it leaves.
    void Finger(QWidget* viewport, std::initializer_list<QPoint> places, int stays = 0) {
        const QPoint last = *(places.end() - 1);
        QTest::touchEvent(viewport, screen.get()).press(0, *places.begin(), viewport);
        for (const QPoint& place : places) QTest::touchEvent(viewport, screen.get()).move(0, place, viewport);
        if (stays) QTest::qWait(stays);
        QTest::touchEvent(viewport, screen.get()).release(0, last, viewport);
        drivers::Settle();
    }
};

TEST_F(TouchTest, ASwipeScrollsATapPressesAndALongPressIsTheRightButton) {
    ListForm form;
    form.Show();
    drivers::Settle();
    form.list->Select(1);
    QWidget* rows = form.list->viewport();
    const QPoint third = form.list->visualRect(form.list->model()->index(3, 0)).center();

    Finger(rows, {third, third - QPoint(0, 30), third - QPoint(0, 90)});
    EXPECT_EQ(form.list->verticalScrollBar()->value(), 90);
    Finger(rows, {third, third + QPoint(0, 30), third + QPoint(0, 90)});
    EXPECT_EQ(form.list->verticalScrollBar()->value(), 0);
    EXPECT_TRUE(form.pressed.isEmpty());
    EXPECT_EQ(form.list->Selected(), 1) << "what was drawn is not chosen";

    Finger(rows, {third, third + QPoint(4, 3)});
    EXPECT_EQ(form.pressed, QList<int>{3});

    Finger(rows, {third + QPoint(0, 40)}, 800);
    EXPECT_EQ(form.pressedRight, QList<int>{4});
    EXPECT_EQ(form.pressed.size(), 1) << "the finger that leaves presses no second time";
}

// What is being stored must not change under it.
TEST_F(TouchTest, AFingerThatStaysDoesNothingWhileSomethingIsStored) {
    ListForm form;
    form.Show();
    drivers::Settle();
    QWidget* rows = form.list->viewport();
    QTest::touchEvent(rows, screen.get()).press(0, rows->rect().center(), rows);
    {
        forms::LongWork wait(u"The store is busy."_s, &form);
        for (const QDeadlineTimer busy(1600); !busy.hasExpired();) wait.GoesOn();
    }
    QTest::touchEvent(rows, screen.get()).release(0, rows->rect().center(), rows);
    drivers::Settle();
    EXPECT_TRUE(form.pressedRight.isEmpty());
}

}  // namespace
