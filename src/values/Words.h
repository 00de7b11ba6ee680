#pragma once

#include <QCoreApplication>

namespace values {

// What values tell a person, in that person's language: Words::tr("...").
class Words {
    Q_DECLARE_TR_FUNCTIONS(values)
};

}  // namespace values
