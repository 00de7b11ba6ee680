#include "upkeep/Findings.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr int NamedCases = 10;

}  // namespace

QString FirstFew(const QStringList& cases) {
    const QString named = cases.first(std::min<qsizetype>(NamedCases, cases.size())).join(u", ");
    return cases.size() <= NamedCases ? named : u"%1 and %2 more"_s.arg(named).arg(cases.size() - NamedCases);
}

void Findings::Damage(int number, const QString& what) {
    if (damage_.isEmpty()) firstNumber_ = number;
    damage_.append(what);
}

void Findings::Note(const QString& kind, const QString& which) {
    if (!notes_.contains(kind)) kinds_.append(kind);
    notes_[kind].append(which);
}

QStringList Findings::NoteLines() const {
    QStringList lines;
    for (const QString& kind : kinds_) lines.append(NoteLine(kind));
    return lines;
}

QString Findings::NoteLine(const QString& kind) const {
    return u"%1: %2"_s.arg(kind, FirstFew(notes_.value(kind)));
}

QList<std::pair<QString, int>> Findings::NoteCounts() const {
    QList<std::pair<QString, int>> counts;
    for (const QString& kind : kinds_) counts.append({kind, static_cast<int>(notes_.value(kind).size())});
    return counts;
}

void Findings::ThrowDamage() const {
    if (!damage_.isEmpty()) throw store::StoreError(firstNumber_, damage_.join(u'\n'));
}

}  // namespace upkeep
