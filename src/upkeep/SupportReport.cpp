#include "upkeep/SupportReport.h"

#include <QDir>
#include <QRegularExpression>
#include <QSysInfo>

#include "store/Database.h"
#include "store/StorePath.h"
#include "upkeep/CheckRegister.h"
#include "upkeep/Words.h"
#include "values/Clock.h"
#include "values/FileError.h"
#include "values/IniFile.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto LeftOut = u"(left out)"_s;

// What an owner typed in the settings: places, persons, words for customers.
const QStringList PrivateSettings{u"MjestoProdaje"_s, u"Footer"_s, u"ServerName"_s};

// Paths, quoted words, addresses and long numbers may name somebody.
QString WithoutNames(QString text) {
    static const QRegularExpression names(
        u"\"[^\"]*\"|'[^']*'|(postgres(ql)?|tcp):\\S+|/\\S+|\\b\\d{5,}\\b|\\b[\\w.]+@\\S+"_s);
    return text.replace(names, u"…"_s);
}

void AddIni(QStringList& lines, const QString& folder, const QString& name, const QStringList& shown) {
    try {
        const auto ini = values::IniFile::Read(QDir(folder).filePath(name));
        for (const auto& key : ini.Keys()) {
            const QString value = ini.Entry(key.section, key.name).value_or(QString());
            const bool isShown = shown.contains(key.name.toLower());
            lines << u"%1 [%2] %3=%4"_s.arg(name, key.section, key.name, isShown ? WithoutNames(value) : LeftOut);
        }
    } catch (const values::Error& error) {
        lines << u"%1: error %2"_s.arg(name).arg(error.Number());
    }
}

void AddSettings(QStringList& lines, const QString& folder) {
    try {
        const auto options = store::Database::Open(store::OptionsPlace(folder), store::OptionsSchema());
        auto row = options->OpenSnapshot(u"SELECT * FROM Options"_s);
        if (row.AtEOF()) return;
        for (const store::Column& column : store::OptionsSchema().tables.front().columns) {
            const QString value = row[column.name].TextOrEmpty();
            lines << column.name + u'=' + (PrivateSettings.contains(column.name) && !value.isEmpty() ? LeftOut : value);
        }
    } catch (const values::Error& error) {
        lines << u"opt.pos: error %1"_s.arg(error.Number());
    }
}

void AddTables(QStringList& lines, const QString& folder) {
    try {
        const store::Place place = store::MainPlace(folder);
        lines << (place.IsServer() ? Words::tr("The main store lies on a server.")
                                   : Words::tr("The main store is a file."));
        const auto main = store::Database::Open(place, store::MainSchema());
        for (const store::Table& table : store::MainSchema().tables)
            lines << u"%1: %2 rows"_s.arg(
                table.name, main->OpenSnapshot(u"SELECT Count(*) AS N FROM [%1]"_s.arg(table.name))[0].TextOrEmpty());
    } catch (const values::Error& error) {
        lines << u"main store: error %1"_s.arg(error.Number());
    }
}

void AddFindings(QStringList& lines, const QString& folder) {
    try {
        const Findings findings = CheckRegister(folder);
        for (const QString& damage : findings.DamageLines()) lines << u"damage: "_s + WithoutNames(damage);
        for (const auto& [kind, cases] : findings.NoteCounts()) lines << u"note: %1: %2"_s.arg(kind).arg(cases);
        if (findings.IsSound()) lines << Words::tr("Both stores are sound.");
    } catch (const values::Error& error) {
        lines << u"check: error %1"_s.arg(error.Number());
    }
}

void AddErrors(QStringList& lines, const QString& folder) {
    QFile log(QDir(folder).filePath(u"errors.log"_s));
    if (!log.open(QIODevice::ReadOnly)) return;
    const QStringList errors = QString::fromUtf8(log.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& error : errors)
        lines << error.section(u'\t', 0, 1) + u'\t' + WithoutNames(error.section(u'\t', 2));
}

}  // namespace

QString SupportReport(const QString& registerFolder) {
    QStringList lines{u"VELTON %1, %2"_s.arg(QStringLiteral(VELTON_VERSION), values::Now().toString(Qt::ISODate)),
                      u"%1, %2, Qt %3"_s.arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture(),
                                             QString::fromLatin1(qVersion())),
                      QString(), u"-- settings"_s};
    AddSettings(lines, registerFolder);
    lines << QString() << u"-- files of settings"_s;
    AddIni(lines, registerFolder, u"velton.ini"_s, {u"sound"_s, u"contrast"_s, u"days"_s, u"weeks"_s, u"months"_s});
    AddIni(lines, registerFolder, u"ports.ini"_s,
           {u"lpt1"_s, u"lpt2"_s, u"status"_s, u"lpt1.status"_s, u"lpt2.status"_s});
    AddIni(lines, registerFolder, u"store.ini"_s, {});
    lines << QString() << u"-- tables"_s;
    AddTables(lines, registerFolder);
    lines << QString() << u"-- check"_s;
    AddFindings(lines, registerFolder);
    lines << QString() << u"-- last errors"_s;
    AddErrors(lines, registerFolder);
    return lines.join(u'\n') + u'\n';
}

}  // namespace upkeep
