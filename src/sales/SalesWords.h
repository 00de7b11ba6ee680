#pragma once

#include <QCoreApplication>

// What the sales tell a person where no screen of theirs is at hand: SalesWords::tr("...").
class SalesWords {
    Q_DECLARE_TR_FUNCTIONS(SalesWords)
};
