#pragma once

#include <QCoreApplication>

namespace upkeep {

// What upkeep tells a person, in that person's language: Words::tr("...").
class Words {
    Q_DECLARE_TR_FUNCTIONS(upkeep)
};

}  // namespace upkeep
