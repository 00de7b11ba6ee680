#pragma once

#include <QHash>
#include <QStringList>

#include "store/StoreError.h"

namespace upkeep {

// What a look over a shop found: damage, which nobody but a broken file or disk brings about; notes, which a crash in
// the middle of a posting leaves behind or which the screens allow; and facts, a line each.
class Findings {
public:
    void Damage(int number, const QString& what);
    // Cases of one kind are told in one line, the first of them by name.
    void Note(const QString& kind, const QString& which);
    void Fact(const QString& line) { facts_.append(line); }

    // Each note as "kind: case, case and 7 more".
    QStringList NoteLines() const;
    // Each kind of note, and how many cases it has.
    QList<std::pair<QString, int>> NoteCounts() const;
    QString NoteLine(const QString& kind) const;
    const QStringList& FactLines() const { return facts_; }
    const QStringList& DamageLines() const { return damage_; }
    // Throws when there is damage, under the number of the first.
    void ThrowDamage() const;
    bool IsSound() const { return damage_.isEmpty(); }

private:
    int firstNumber_ = 0;
    QStringList damage_;
    QStringList facts_;
    QStringList kinds_;
    QHash<QString, QStringList> notes_;
};

// As they are told: all of them, or the first few and the number of the others.
QString FirstFew(const QStringList& cases);

}  // namespace upkeep
