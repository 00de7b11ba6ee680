#include "core/AccessLevels.h"

#include "values/Numbers.h"

using namespace Qt::StringLiterals;

bool IsOwner(const QString& accLevel) {
    return values::Val(accLevel) >= OwnersLevel;
}

QStringList EntriesSwitchedOff(const QString& accLevel) {
    const double level = values::Val(accLevel);
    if (level == 1)
        return {u"mnuPorez"_s,       u"mnuDatabase"_s, u"mnuUsers"_s,    u"mnuRac"_s,
                u"mnuPodesavanje"_s, u"mnuView"_s,     u"mnuZakljucak"_s};
    if (level == 2)
        return {u"mnuPorez"_s,   u"mnuPregledZakljucaka1"_s, u"mnuUsers"_s,
                u"mnuRac"_s,     u"mnuPodesavanje"_s,        u"mnuView"_s,
                u"mnuDatabase"_s};
    return {};
}

QStringList EntriesSwitchedOn(const QString& accLevel) {
    if (values::Val(accLevel) == 2) return {u"mnuTrenutnoKasa"_s};
    return {};
}
