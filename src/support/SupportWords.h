#pragma once

#include <QCoreApplication>

// What support tells a person where no screen of its own is at hand: SupportWords::tr("...").
class SupportWords {
    Q_DECLARE_TR_FUNCTIONS(SupportWords)
};
