#include "upkeep/Findings.h"

#include <algorithm>

#include "upkeep/Words.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr int NamedCases = 10;

QString Filled(QString text, const QStringList& fields) {
    for (const QString& field : fields) text = text.arg(field);
    return text;
}

}  // namespace

QString FirstFew(const QStringList& cases) {
    const QString named = cases.first(std::min<qsizetype>(NamedCases, cases.size())).join(u", ");
    return cases.size() <= NamedCases
               ? named
               : Words::tr("%1 and %2 more").arg(named, QString::number(cases.size() - NamedCases));
}

void Findings::Damage(int number, const QString& what, FindingKind kind) {
    if (damage_.isEmpty()) firstNumber_ = number;
    damage_.append(what);
    damageKinds_.push_back(kind);
}

void Findings::Note(const char* text, const QString& which, FindingKind kind, const QStringList& fields) {
    const QString english = Filled(QString::fromUtf8(text), fields);
    auto place = places_.constFind(english);
    if (place == places_.cend()) {
        place = places_.insert(english, notes_.size());
        notes_.push_back({kind, english, Filled(Words::tr(text), fields), {}});
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
    for (const Group& group : notes_) lines.append(u"%1: %2"_s.arg(group.told, FirstFew(group.cases)));
    return lines;
}

void Findings::ThrowDamage() const {
    if (!damage_.isEmpty()) throw store::StoreError(firstNumber_, damage_.join(u'\n'));
}

}  // namespace upkeep
