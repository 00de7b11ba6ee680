#pragma once

#include <QString>

// Puts a text through all stages, as a query text and as a criteria text, and runs it on an empty store. What is wrong
// with the dialect then (a text that compiles but not twice alike, an error without a place, SQL that the engine
// refuses); empty when nothing.
QString DialectFaultOn(const QString& text);
