#include "core/ErrorLog.h"

#include <QFile>
#include <QSaveFile>

#include "forms/Program.h"
#include "output/Folder.h"
#include "values/Clock.h"
#include "values/Error.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype KeptErrors = 100;
constexpr qsizetype LongestLine = 300;
constexpr qint64 LongestLog = qint64{64} * 1024;

void Note(const std::exception& error) {
    const auto* known = dynamic_cast<const values::Error*>(&error);
    const QString words = known ? known->Description() : QString::fromUtf8(error.what());
    const QString line = values::Now().toString(Qt::ISODate) + u'\t' + QString::number(known ? known->Number() : 0) +
                         u'\t' + words.simplified().left(LongestLine);
    const QString path = output::InProgramFolder(u"errors.log"_s);
    QFile before(path);
    QByteArrayList lines;
    if (before.open(QIODevice::ReadOnly)) lines = before.read(LongestLog).trimmed().split('\n');
    lines.removeAll(QByteArray());
    lines << line.toUtf8();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return;
    file.write(lines.mid(std::max<qsizetype>(0, lines.size() - KeptErrors)).join('\n') + '\n');
    file.commit();
}

}  // namespace

void KeepErrorLog() {
    forms::OnUntrappedError(Note);
}
