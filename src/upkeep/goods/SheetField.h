#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace upkeep {

// What a column of a table may be.
enum class SheetField { None, Code, Name, Price, Quantity, Unit, Tax, Group, Picture };

// All but None, in the order in which they are shown.
const QList<SheetField>& SheetFields();
// The word for a command line, "code", and the name that a person reads, "Code".
QString FieldWord(SheetField field);
QString FieldName(SheetField field);
// None for "none"; a word that is no field throws a FileError that tells those that are.
SheetField FieldOfWord(const QString& word);

// What the columns under these headings are, in a language of the region; of several that could be the same the one
// that says so best.
QList<SheetField> GuessFields(const QStringList& headings);

}  // namespace upkeep
