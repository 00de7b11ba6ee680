#include "manager/drawer/DrawerText.h"

#include <QCoreApplication>

#include "core/Installation.h"
#include "core/dbModule.h"
#include "manager/Texts.h"
#include "manager/overview/OverviewCharts.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

constexpr int Width = 40;
constexpr int FigureWidth = 14;

class Words {
    Q_DECLARE_TR_FUNCTIONS(manager::DrawerText)
};

QString Line(const QString& words, values::Money amount) {
    return PadRight(Width - FigureWidth, words) + PadLeft(FigureWidth, AmountText(amount));
}

}  // namespace

QStringList DrawerLines(const upkeep::DrawerCount& count) {
    const QString rule(Width, u'-');
    QStringList lines{TheInstallation.heading.NazivFirme,
                      {},
                      Words::tr("Count %1 of the drawer, in %2").arg(count.number).arg(count.currency),
                      values::DateText(count.day) + u"  "_s + values::TimeText(count.time),
                      Words::tr("Counted by %1").arg(count.userName),
                      count.endReport == 0 ? Words::tr("Since the last End Report")
                                           : Words::tr("For End Report %1").arg(count.endReport),
                      rule};
    for (const auto& [worth, pieces] : count.pieces)
        lines << Line(u"%1 x %2"_s.arg(pieces, 6).arg(AmountText(worth)), worth * values::Money::FromWhole(pieces));
    lines << rule << Line(Words::tr("Counted"), count.counted) << rule << Line(Words::tr("Sold in cash"), count.sold)
          << Line(Words::tr("Put in"), count.putIn) << Line(Words::tr("Taken out"), -count.takenOut)
          << Line(Words::tr("Should be there"), count.Expected()) << rule
          << Line(Words::tr("DIFFERENCE"), count.Difference());
    if (!count.remark.isEmpty()) lines << QString() << count.remark;
    return lines;
}

QString PiecesText(const upkeep::DrawerCount& count) {
    QStringList texts;
    for (const auto& [worth, pieces] : count.pieces) texts << u"%1 x %2"_s.arg(pieces).arg(AmountText(worth));
    return texts.join(u", "_s);
}

}  // namespace manager
