#pragma once

#include <QCoreApplication>

// What the master data tell a person where no screen of theirs is at hand: MasterdataWords::tr("...").
class MasterdataWords {
    Q_DECLARE_TR_FUNCTIONS(MasterdataWords)
};
