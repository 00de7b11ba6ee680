#include <gmock/gmock.h>

#include <QApplication>
#include <QPointingDevice>
#include <QTest>

#include "SampleForm.h"
#include "forms/KeypadPlace.h"
#include "forms/MsgBox.h"
#include "player/Input.h"
#include "support/ScreenTest.h"
#include "values/Locale.h"

using drivers::Boxes;
using drivers::Keys;
using drivers::Settle;
using testing::ElementsAre;

namespace {

// By mouse and by touch, which the window system tells in different ways.
class KeypadTest : public drivers::ScreenTest, public testing::WithParamInterface<bool> {
protected:
    KeypadTest() {
        forms::UseKeypad([this] { return wanted; });
        form.HighlightOnFocus({form.txtCode, form.txtAmount});
        form.NumericKeys({form.txtAmount}, u"-"_s);
        form.Keypad({form.txtCode}, forms::KeypadKeys::Code);
        form.Keypad({form.cboTemp}, forms::KeypadKeys::Text);
        form.KeypadSpares({form.cmdSave});
        form.EnterMovesOn({form.txtCode, form.txtAmount});
        form.cboTemp->setCompleter(nullptr);
        form.Show();
        form.cmdClose->setFocus();
        Settle();
        form.log.clear();
    }
    ~KeypadTest() override {
        forms::UseKeypad([] { return false; });
    }

    void Tap(QWidget* control, QPoint slide = {}) {
        Settle();
        const QPoint place = control->rect().center();
        QWindow* window = control->window()->windowHandle();
        const auto at = [&](QPoint point) { return control->mapTo(control->window(), point); };
        if (GetParam()) {
            QTest::touchEvent(window, screen.get()).press(0, at(place), window);
            QTest::touchEvent(window, screen.get()).release(0, at(place + slide), window);
        } else {
            QTest::mousePress(window, Qt::LeftButton, {}, at(place));
            QTest::mouseRelease(window, Qt::LeftButton, {}, at(place + slide));
        }
        Settle();
    }
    const std::unique_ptr<QPointingDevice> screen{QTest::createTouchDevice()};

    static QWidget* Keypad() { return forms::ShownKeypad(); }
    void TapKeys(const QStringList& names) {
        for (const QString& name : names) {
            ASSERT_TRUE(Keypad()) << name.toStdString();
            Tap(drivers::Get<QWidget>(*Keypad(), u"key"_s + name));
        }
    }
    static QRect OnScreen(const QWidget* widget) { return {widget->mapToGlobal(QPoint()), widget->size()}; }

    bool wanted = true;
    frmSample form;
};

TEST_P(KeypadTest, ATapBringsTheKeysOfTheBoxAndTheyTypeAsTheKeyboardDoes) {
    values::SetUserLocale(QLocale(u"de_DE"_s));
    form.onKey = [this](QKeyEvent& key) { return form.log << QKeySequence(key.key()).toString(), false; };
    Tap(form.txtAmount);
    ASSERT_TRUE(Keypad());
    EXPECT_EQ(QApplication::focusWidget(), form.txtAmount);
    EXPECT_TRUE(form.isActiveWindow());
    TapKeys({u"-"_s, u"1"_s, u"2"_s, u"Back"_s, u","_s, u"5"_s, u"5"_s});
    EXPECT_EQ(form.txtAmount->text(), u"-1,55"_s) << "each touch types once";
    EXPECT_THAT(form.log, ElementsAre(u"-"_s, u"1"_s, u"2"_s, u"Backspace"_s, u","_s, u"5"_s, u"5"_s));
    for (const QWidget* kept : std::initializer_list<QWidget*>{form.txtAmount, form.cmdSave})
        EXPECT_FALSE(OnScreen(Keypad()).intersects(OnScreen(kept))) << kept->objectName().toStdString();
    EXPECT_TRUE(form.screen()->availableGeometry().contains(Keypad()->geometry()));
    for (const auto* key : Keypad()->findChildren<QPushButton*>())
        EXPECT_TRUE(key->width() >= 44 && key->height() >= 44) << key->objectName().toStdString();

    // Enter leads on, and the keypad follows to a box that wants one, with its letters behind a key.
    TapKeys({u"Enter"_s});
    EXPECT_EQ(QApplication::focusWidget(), form.cboTemp);
    TapKeys({u"Capitals"_s, u"č"_s, u"Capitals"_s, u"a"_s, u"ž"_s, u"Swap"_s, u"7"_s, u"Swap"_s, u" "_s, u"đ"_s});
    EXPECT_EQ(form.cboTemp->currentText(), u"Čaž7 đ"_s);
    TapKeys({u"Close"_s});
    EXPECT_FALSE(Keypad());
    Tap(form.txtCode);
    TapKeys({u"3"_s, u"-"_s, u"Swap"_s, u"Capitals"_s, u"x"_s, u"Enter"_s});
    EXPECT_EQ(form.txtCode->text(), u"3-X"_s);
    EXPECT_EQ(QApplication::focusWidget(), form.txtAmount);
    EXPECT_TRUE(Keypad());
}

TEST_P(KeypadTest, ItGoesWhenItsBoxIsLeftAndNobodyElseSeesIt) {
    const auto bring = [this] {
        Tap(form.txtAmount);
        ASSERT_TRUE(Keypad());
    };
    bring();
    Keys(u"5");
    EXPECT_FALSE(Keypad()) << "a real key takes it away";
    EXPECT_EQ(form.txtAmount->text(), u"5"_s);
    Keys(u"{Tab}{Shift+Tab}{Shift+Tab}");
    EXPECT_FALSE(Keypad()) << "who types never sees it";
    bring();
    Tap(form.cmdSave);
    EXPECT_THAT(form.log, ElementsAre(u"save"_s));
    bring();
    form.cmdSave->setFocus();
    EXPECT_FALSE(Keypad());
    bring();
    Boxes boxes;
    boxes.Expect(u"now?"_s).Doing([](QMessageBox& box) {
        EXPECT_FALSE(Keypad());
        box.accept();
    });
    forms::Tell(u"now?"_s);
    EXPECT_FALSE(Keypad());

    // A handler of the Enter key may open a box, or close the form.
    form.ControlKeys(form.txtCode, {{Qt::Key_Return, [] { forms::Tell(u"not known"_s); }}});
    boxes.Expect(u"not known"_s).Doing([](QMessageBox& box) {
        EXPECT_FALSE(Keypad());
        box.accept();
    });
    Tap(form.txtCode);
    TapKeys({u"Enter"_s});
    EXPECT_TRUE(Keypad()) << "the focus came back to the box by the keypad's own Enter";
    Tap(form.txtAmount, {60, 0});
    EXPECT_FALSE(Keypad()) << "who selects does not tap";
    form.txtAmount->setReadOnly(true);
    Tap(form.txtAmount);
    EXPECT_FALSE(Keypad());
    form.txtAmount->setReadOnly(false);
    wanted = false;
    Tap(form.txtAmount);
    EXPECT_FALSE(Keypad());
    wanted = true;
    bring();
    form.Unload();
    Settle();
    EXPECT_FALSE(Keypad());
}

TEST_P(KeypadTest, AboveAModalFormItTypesPasswordsAndOffersTexts) {
    frmSample dialog;
    dialog.txtCode->setEchoMode(QLineEdit::Password);
    dialog.NumericKeys({dialog.txtAmount});
    dialog.KeypadOffers(dialog.txtAmount, [] { return QStringList{u"37.40"_s, u"40"_s}; });
    dialog.ControlKeys(dialog.txtAmount, {{Qt::Key_Return, [&] { dialog.Unload(); }}});
    Boxes boxes;
    boxes.ExpectForm(u"frmSample"_s, [&](QWidget&) {
        Tap(dialog.txtCode);
        TapKeys({u"1"_s, u"a"_s});
        Tap(dialog.txtAmount);
        TapKeys({u"9"_s, u"Offer0"_s});
        EXPECT_EQ(dialog.txtAmount->text(), u"37.40"_s);
        TapKeys({u"Offer1"_s, u"Enter"_s});
    });
    dialog.ShowModal();
    EXPECT_EQ(dialog.txtCode->text(), u"1a"_s);
    EXPECT_EQ(dialog.txtAmount->text(), u"40"_s);
    EXPECT_FALSE(Keypad());
}

TEST_P(KeypadTest, TwoThumbsTypeAtATime) {
    drivers::Click(form.txtAmount);
    QWindow* window = Keypad()->windowHandle();
    const auto at = [](QStringView key) { return drivers::Get<QWidget>(*Keypad(), key)->geometry().center(); };
    QTest::touchEvent(window, screen.get()).press(0, at(u"key1"), window);
    QTest::touchEvent(window, screen.get()).stationary(0).press(1, at(u"key3"), window);
    QTest::touchEvent(window, screen.get()).release(0, at(u"key1"), window).stationary(1);
    QTest::touchEvent(window, screen.get()).release(1, at(u"key3"), window);
    Settle();
    EXPECT_EQ(form.txtAmount->text(), u"13"_s);
}

INSTANTIATE_TEST_SUITE_P(By, KeypadTest, testing::Values(false, true),
                         [](const auto& by) { return by.param ? "Touch" : "Mouse"; });

TEST(KeypadPlaceTest, OnASmallScreenTooItCoversNeitherItsBoxNorTheTotal) {
    const QRect screen(0, 0, 1024, 600);
    const QList<QRect> totals{{330, 480, 240, 50}};
    for (const QSize size : {QSize(274, 238), QSize(650, 280)}) {
        for (int top = 0; top < 560; top += 20) {
            for (int left = 0; left < 900; left += 60) {
                const QRect box(left, top, 120, 40);
                // No place is left for letters beside a box in the middle.
                if (box.intersects(totals[0]) || (size.width() > 600 && top > 140)) continue;
                const QRect place(forms::PlaceOfKeypad(size, screen, {box, screen, totals, {}}), size);
                EXPECT_TRUE(screen.contains(place));
                EXPECT_FALSE(place.intersects(box)) << left << ' ' << top << ' ' << size.width();
                EXPECT_FALSE(place.intersects(totals[0])) << left << ' ' << top << ' ' << size.width();
            }
        }
    }
}

}  // namespace
