#pragma once

#include <QHash>
#include <QStringList>

#include "store/Database.h"

namespace tool {

// What a look over the stores found: damage, which nobody but a broken file or disk brings about, and notes, which a
// crash in the middle of a posting leaves behind or which the screens allow.
class Findings {
public:
    void Damage(int number, const QString& what);
    // Cases of one kind are told in one line, the first of them by name.
    void Note(const QString& kind, const QString& which);

    QStringList NoteLines() const;
    // Throws when there is damage, under the number of the first.
    void ThrowDamage() const;
    bool IsSound() const { return damage_.isEmpty(); }

private:
    struct Cases {
        QStringList named;
        qint64 count = 0;
    };

    int firstNumber_ = 0;
    QStringList damage_;
    QStringList kinds_;
    QHash<QString, Cases> notes_;
};

// The references that the program keeps by itself, and what is odd about single rows.
void CheckReferences(store::Database& main, Findings& findings);
// Totals of invoices and periods against the rows that they sum up.
void CheckTotals(store::Database& main, Findings& findings);

}  // namespace tool
