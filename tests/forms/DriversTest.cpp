#include <gtest/gtest-spi.h>

#include "SampleForm.h"
#include "support/ScreenTest.h"

using drivers::Boxes;

namespace {

// What the cases of tests/data/screens/wrong.txt can't show.
class DriversTest : public drivers::ScreenTest {};

TEST_F(DriversTest, WhatNeverCameFails) {
    EXPECT_NONFATAL_FAILURE(
        {
            Boxes boxes;
            boxes.ExpectForm(u"frmGone"_s, [](QWidget&) {});
        },
        "the form frmGone never came up");
}

TEST_F(DriversTest, KeysAreTypedAsTheyStand) {
    frmSample form;
    form.Show();
    drivers::Keys(u"Čaj{Space}{{}1{}}{Left}{Backspace}2{End}.");
    EXPECT_EQ(drivers::Box(form, u"txtCode"), u"Čaj {2}."_s);
    EXPECT_NONFATAL_FAILURE(drivers::Get<QLineEdit>(QWidget(), u"txtNone"), "txtNone");
}

}  // namespace
