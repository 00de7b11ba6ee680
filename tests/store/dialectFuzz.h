#pragma once

#include <QString>
#include <QStringView>

// Puts a text through all stages as a query text and as a criteria text. What is wrong with the dialect then (a text
// that compiles but not twice alike, a tree that prints as another, SQL that the engine refuses); empty when nothing.
QString DialectFaultOn(const QString& text);
