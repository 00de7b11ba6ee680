#include "upkeep/Findings.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr int NamedCases = 10;

}  // namespace

QString FirstFew(const QStringList& cases) {
    const QString named = cases.first(std::min<qsizetype>(NamedCases, cases.size())).join(u", ");
    return cases.size() <= NamedCases ? named : u"%1 and %2 more"_s.arg(named).arg(cases.size() - NamedCases);
}

void Findings::Damage(int number, const QString& what, FindingKind kind) {
    if (damage_.isEmpty()) firstNumber_ = number;
    damage_.append(what);
    damageKinds_.push_back(kind);
}

void Findings::Note(const QString& text, const QString& which, FindingKind kind) {
    auto place = places_.constFind(text);
    if (place == places_.cend()) {
        place = places_.insert(text, notes_.size());
        notes_.push_back({kind, text, {}});
    }
    notes_[place.value()].cases.append(which);
}

void Findings::Fact(const QString& line, const PeriodFact& fact) {
    facts_.append(line);
    periods_.push_back(fact);
}

bool Findings::HasNote(FindingKind kind) const {
    return std::ranges::any_of(notes_, [kind](const Group& group) { return group.kind == kind; });
}

QStringList Findings::NoteLines() const {
    QStringList lines;
    for (const Group& group : notes_) lines.append(u"%1: %2"_s.arg(group.text, FirstFew(group.cases)));
    return lines;
}

void Findings::ThrowDamage() const {
    if (!damage_.isEmpty()) throw store::StoreError(firstNumber_, damage_.join(u'\n'));
}

}  // namespace upkeep
