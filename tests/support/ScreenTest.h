#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "player/Keys.h"
#include "support/Answers.h"
#include "support/Controls.h"

namespace drivers {

// Every screen test starts in the en_US locale, with a program that runs and no form loaded, and an empty folder.
class ScreenTest : public ::testing::Test {
protected:
    ScreenTest();
    ~ScreenTest() override;

    QTemporaryDir folder;
};

}  // namespace drivers
