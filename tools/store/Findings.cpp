#include "Findings.h"

using namespace Qt::StringLiterals;

namespace tool {

namespace {

constexpr int NamedCases = 10;

}  // namespace

void Findings::Damage(int number, const QString& what) {
    if (damage_.isEmpty()) firstNumber_ = number;
    damage_.append(what);
}

void Findings::Note(const QString& kind, const QString& which) {
    if (!notes_.contains(kind)) kinds_.append(kind);
    Cases& cases = notes_[kind];
    if (++cases.count <= NamedCases) cases.named.append(which);
}

QStringList Findings::NoteLines() const {
    QStringList lines;
    for (const QString& kind : kinds_) {
        const Cases cases = notes_.value(kind);
        const qint64 more = cases.count - cases.named.size();
        QString line = u"note: %1: %2"_s.arg(kind, cases.named.join(u", "));
        if (more > 0) line += u" and %1 more"_s.arg(more);
        lines.append(line);
    }
    return lines;
}

void Findings::ThrowDamage() const {
    if (!damage_.isEmpty()) throw store::StoreError(firstNumber_, damage_.join(u'\n'));
}

}  // namespace tool
