#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QString>
#include <vector>

namespace values {

// A language that the program speaks, by its code ("hr", "sr_Latn") and by its own name for itself.
struct Language {
    QString code;
    QString name;
};

// Sorted by their names.
const std::vector<Language>& Languages();
bool IsLanguage(const QString& code);

// The language that a user of this locale would choose; empty when there is none.
QString LanguageFor(const QLocale& locale);

// Screens and paper each have their own. Without one, each shows the texts as the program has them itself.
enum class Shown { OnScreens, OnPaper };

// Holds for every text that is asked for from now on; an empty code is no language, and so is one that isn't there.
void UseLanguage(Shown where, const QString& code);

// What is printed, or shown as it is printed: Paper::tr("...").
class Paper {
    Q_DECLARE_TR_FUNCTIONS(Paper)
};

}  // namespace values
