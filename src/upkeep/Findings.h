#pragma once

#include <QDate>
#include <QHash>
#include <QStringList>
#include <vector>

#include "store/StoreError.h"
#include "upkeep/health/FindingKind.h"
#include "values/Money.h"

namespace upkeep {

// What one End Report closed, or what is open, and how it agrees with itself.
struct PeriodFact {
    bool isOpen = false;
    qint64 endReport = 0;  // 0 without one
    QDate day;
    qint64 invoices = 0;
    values::Money total;
    values::Money tax;
    // What differs from the invoices: each is none where it agrees.
    bool linesDiffer = false;
    bool taxDiffers = false;
    bool takingsDiffer = false;
    QStringList leftOut;  // numbers, or ranges of them
    QStringList twice;

    bool Agrees() const {
        return !linesDiffer && !taxDiffers && !takingsDiffer && leftOut.isEmpty() && twice.isEmpty();
    }
};

// What a look over a shop found: damage, which nobody but a broken file or disk brings about; notes, which a crash in
// the middle of a posting leaves behind or which the screens allow; and facts, a line each.
class Findings {
public:
    struct Group {
        FindingKind kind = FindingKind::Other;
        QString text;
        QStringList cases;
    };
    // What was looked at.
    struct Extent {
        qint64 invoices = 0;
        qint64 goods = 0;
        qint64 receipts = 0;  // of the ribbon
    };

    void Damage(int number, const QString& what, FindingKind kind = FindingKind::Other);
    // Cases of one text are told in one line, the first of them by name.
    void Note(const QString& text, const QString& which, FindingKind kind = FindingKind::Other);
    void Fact(const QString& line, const PeriodFact& fact);

    // Each note as "text: case, case and 7 more".
    QStringList NoteLines() const;
    const std::vector<Group>& Notes() const { return notes_; }
    bool HasNote(FindingKind kind) const;
    const QStringList& FactLines() const { return facts_; }
    const std::vector<PeriodFact>& Periods() const { return periods_; }
    const QStringList& DamageLines() const { return damage_; }
    // In the order of the lines.
    const std::vector<FindingKind>& Damages() const { return damageKinds_; }
    // Throws when there is damage, under the number of the first.
    void ThrowDamage() const;
    bool IsSound() const { return damage_.isEmpty(); }

    Extent extent;

private:
    int firstNumber_ = 0;
    QStringList damage_;
    std::vector<FindingKind> damageKinds_;
    QStringList facts_;
    std::vector<PeriodFact> periods_;
    std::vector<Group> notes_;
    QHash<QString, size_t> places_;  // of the notes, by their texts
};

// As they are told: all of them, or the first few and the number of the others.
QString FirstFew(const QStringList& cases);

}  // namespace upkeep
