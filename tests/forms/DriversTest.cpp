#include <gtest/gtest-spi.h>

#include "SampleForm.h"
#include "forms/MsgBox.h"
#include "support/ScreenTest.h"

using drivers::Boxes;

namespace {

// The drivers have to notice what goes wrong, or every screen test is worth nothing.
class DriversTest : public drivers::ScreenTest {};

TEST_F(DriversTest, ABoxThatNobodyExpectsFails) {
    EXPECT_NONFATAL_FAILURE(forms::Tell(u"surprise"_s), "the box \"surprise\" came up; expected was nothing");
    EXPECT_NONFATAL_FAILURE(
        {
            Boxes boxes;
            boxes.Expect(u"one"_s);
            forms::Tell(u"One"_s);
            forms::Tell(u"one"_s);
        },
        "the box \"One\" came up; expected was the box \"one\"");
    EXPECT_NONFATAL_FAILURE(forms::Ask(u"sure?"_s, u"title"_s), "sure?");
}

TEST_F(DriversTest, WhatNeverCameFails) {
    EXPECT_NONFATAL_FAILURE(
        {
            Boxes boxes;
            boxes.ExpectForm(u"frmGone"_s, [](QWidget&) {});
        },
        "the form frmGone never came up");
}

TEST_F(DriversTest, TitlesAndIconsAreCompared) {
    EXPECT_NONFATAL_FAILURE(
        {
            Boxes boxes;
            boxes.Expect(u"text"_s).Titled(u"right"_s);
            forms::Tell(u"text"_s, forms::Icon::None, u"wrong"_s);
        },
        "wrong");
    EXPECT_NONFATAL_FAILURE(
        {
            Boxes boxes;
            boxes.Expect(u"text"_s).WithIcon(QMessageBox::Critical);
            forms::Tell(u"text"_s, forms::Icon::Warning);
        },
        "the box \"text\"");
}

TEST_F(DriversTest, KeysAreTypedAsTheyStand) {
    frmSample form;
    form.Show();
    drivers::Keys(u"Čaj{Space}{{}1{}}{Left}{Backspace}2{End}.");
    EXPECT_EQ(drivers::Box(form, u"txtCode"), u"Čaj {2}."_s);
    EXPECT_NONFATAL_FAILURE(drivers::Keys(u"{F13}"), "no key is named F13");
    EXPECT_NONFATAL_FAILURE(drivers::Get<QLineEdit>(QWidget(), u"txtNone"), "txtNone");
}

}  // namespace
