#pragma once

#include <QString>

class QWidget;

namespace manager {

// Where a file is to be saved, with the suffix (".csv") behind a name that has none of `suffixes`, the first of which
// is meant. A file that is there is only replaced after a question. "" when the user leaves it.
QString AskSaveAs(QWidget* page, const QString& title, const QString& filter, const QStringList& suffixes);

}  // namespace manager
