#pragma once

#include <QCoreApplication>

namespace store {

// What the store tells a person, in that person's language: Words::tr("...").
class Words {
    Q_DECLARE_TR_FUNCTIONS(store)
};

}  // namespace store
