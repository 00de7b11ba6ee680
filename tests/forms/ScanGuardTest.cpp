#include <QApplication>
#include <QPushButton>
#include <QThread>

#include "forms/LongWork.h"
#include "forms/MsgBox.h"
#include "forms/Sound.h"
#include "player/Input.h"
#include "support/ScreenTest.h"

using namespace Qt::StringLiterals;
using drivers::Boxes;
using drivers::Keys;
using drivers::Wait;

namespace {

class ScanGuardTest : public drivers::ScreenTest {};

// Keys as the window system says they were typed, in a program that takes its time for each.
void TypeIntoStall(QWidget& box, const QString& code, quint64 apart) {
    quint64 stamp = 1000;
    for (const QChar character : code + u'\r') {
        const int key = character == u'\r' ? int(Qt::Key_Return) : character.unicode();
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, character);
        press.setTimestamp(stamp += apart);
        QApplication::sendEvent(box.focusWidget(), &press);
        QThread::msleep(70);
    }
}

TEST_F(ScanGuardTest, AScanAnswersNoBoxAndIsShown) {
    const auto ask = [] { return forms::Ask(u"sure?"_s, u"Question"_s); };
    const auto tell = [](forms::Icon icon) { return [icon] { return forms::Tell(u"sure?"_s, icon), true; }; };
    const struct {
        std::function<bool()> show;
        QString keys;
        bool answer;
        int after;  // milliseconds
    } cases[] = {
        {tell(forms::Icon::None), u"{Enter}"_s, true, 80},
        {tell(forms::Icon::Information), u"{Space}"_s, true, 80},
        {tell(forms::Icon::Warning), u"{Esc}"_s, true, 0},
        {tell(forms::Icon::Critical), u"{Right}{Enter}"_s, true, 0},
        {ask, u"{Enter}"_s, true, 80},
        {ask, u"{Esc}"_s, false, 0},
        {ask, u"{Right}{Space}"_s, false, 0},
        {ask, u"{Tab}{Enter}"_s, false, 80},
        {ask, u"n"_s, false, 80},
        {ask, u"{Alt+n}"_s, false, 0},
    };
    for (const auto& [show, keys, answer, after] : cases) {
        SCOPED_TRACE(keys.toStdString());
        Boxes boxes;
        boxes.Expect(u"sure?"_s).Doing([&](QMessageBox& box) {
            const int before = forms::BeepCount();
            const QWidget* preset = box.focusWidget();
            const auto scan = [&](const QStringList& strokes) {
                for (const QString& stroke : strokes) {
                    Keys(stroke);
                    QThread::msleep(1);
                }
            };
            scan({u"3"_s, u"8"_s, u"5"_s, u"{Enter}"_s, u"{Enter}"_s});
            EXPECT_EQ(box.informativeText(), u"Not taken: 385"_s);
            // Without an Enter, with letters and keys that would press a button.
            scan({u"{Space}"_s, u"n"_s, u"Y"_s, u"{Tab}"_s, u"o"_s, u"<"_s, u"{Ctrl+]}"_s});
            Wait(100);
            EXPECT_EQ(box.informativeText(), u"Not taken: 385,  nYo<"_s);
            EXPECT_EQ(forms::BeepCount() - before, 2);
            EXPECT_TRUE(box.isVisible());
            EXPECT_EQ(box.focusWidget(), preset);
            drivers::Grab(box, u"scan-not-taken"_s);
            scan({u"9"_s, u"9"_s, u"9"_s, u"{Enter}"_s});
            if (after) Wait(after);
            Keys(keys);
            for (int i = 0; i < 30 && box.isVisible(); ++i) Wait(10);
        });
        EXPECT_EQ(show(), answer);
    }
}

TEST_F(ScanGuardTest, AHandIsToldFromAScannerInABusyProgramToo) {
    const int before = forms::BeepCount();
    Boxes boxes;
    boxes.Expect(u"slow"_s).Doing([](QMessageBox& box) {
        TypeIntoStall(box, u"1234"_s, 120);
        EXPECT_FALSE(box.isVisible());
    });
    forms::Tell(u"slow"_s);
    boxes.Expect(u"busy"_s).Doing([](QMessageBox& box) {
        TypeIntoStall(box, u"777"_s, 3);
        EXPECT_EQ(box.informativeText(), u"Not taken: 777"_s);
        box.accept();
    });
    forms::Tell(u"busy"_s);
    boxes.Expect(u"short"_s).Typing(u"12{Enter}"_s);
    forms::Tell(u"short"_s);
    EXPECT_EQ(forms::BeepCount(), before + 1);
}

TEST_F(ScanGuardTest, AScanThatAWaitSwallowsIsBeepedAt) {
    const int before = forms::BeepCount();
    QWidget window;
    window.show();
    drivers::Settle();
    forms::LongWork wait(u"waits"_s, &window);
    QTimer::singleShot(0, qApp, [] {
        Keys(u"12{Enter}385{Enter}");
        Keys(u"{Esc}");
    });
    while (wait.GoesOn()) QThread::msleep(5);
    EXPECT_EQ(forms::BeepCount(), before + 1);
}

}  // namespace
