#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <vector>

namespace values {

// A language that the program speaks, by its code ("hr", "sr_Latn") and by its own name for itself.
struct Language {
    QString code;
    QString name;
};

// Sorted by their names.
const std::vector<Language>& Languages();

// The first of these that there is, as a locale names the languages of its screens ("de-AT"); empty when there is none.
QString LanguageFor(const QStringList& wanted);

// Screens and paper each have their own. Without one, each shows the texts as the program has them itself.
enum class Shown { OnScreens, OnPaper };

// Holds for every text that is asked for from now on. The case of the code does not matter; an empty one is no
// language, and so is one that isn't there.
void UseLanguage(Shown where, const QString& wanted);
// The code of the one in use; empty without one.
QString LanguageOf(Shown where);

// For a program without screens: what velton.ini in the folder of a register has for them, where it can be read.
void UseLanguageOf(const QString& registerFolder);

// What is printed, or shown as it is printed: Paper::tr("...").
class Paper {
    Q_DECLARE_TR_FUNCTIONS(Paper)
};

}  // namespace values
