#pragma once

#include <QCoreApplication>

namespace output {

// What output tells a person, in that person's language: Words::tr("...").
class Words {
    Q_DECLARE_TR_FUNCTIONS(output)
};

}  // namespace output
