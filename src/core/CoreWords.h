#pragma once

#include <QCoreApplication>

// What the core tells a person where no screen of its own is at hand: CoreWords::tr("...").
class CoreWords {
    Q_DECLARE_TR_FUNCTIONS(CoreWords)
};
