#pragma once

#include <QCoreApplication>

namespace forms {

// What the forms tell a person, in that person's language, where no form is at hand: Words::tr("...").
class Words {
    Q_DECLARE_TR_FUNCTIONS(forms)
};

}  // namespace forms
