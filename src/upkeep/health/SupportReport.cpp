#include "upkeep/health/SupportReport.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStorageInfo>
#include <QSysInfo>

#include "store/Database.h"
#include "store/OptionsTable.h"
#include "store/StorePath.h"
#include "upkeep/BackupState.h"
#include "upkeep/RowCount.h"
#include "upkeep/health/IniReport.h"
#include "values/Clock.h"
#include "values/ErrorLog.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

constexpr qint64 Kilobyte = 1024, Megabyte = Kilobyte * Kilobyte;

const auto MomentFormat = u"yyyy-MM-dd hh:mm"_s;

qint64 Kilobytes(qint64 bytes) {
    return (bytes + Kilobyte - 1) / Kilobyte;
}

const QStringList FilesOfInterest{u"ORVA.pos"_s,     u"ORVA.pos-wal"_s, u"opt.pos"_s,
                                  u"invoices.txt"_s, u"fiscal.txt"_s,   u"velton.ini"_s,
                                  u"ports.ini"_s,    u"store.ini"_s,    u"errors.log"_s};

class Text {
public:
    void Head(const QString& name) { lines_ << (lines_.isEmpty() ? name : u'\n' + name); }
    void Line(const QString& name, const QString& value) { lines_ << u"  %1: %2"_s.arg(name, value); }
    void Line(const QString& line) { lines_ << u"  "_s + line; }
    QString Take() const { return lines_.join(u'\n') + u'\n'; }

private:
    QStringList lines_;
};

void AddSystem(Text& text, const QString& folder) {
    text.Head(u"Versions and system"_s);
    text.Line(u"time of this report"_s, values::Now().toString(MomentFormat));
    text.Line(u"VELTON"_s, QStringLiteral(VELTON_VERSION));
    text.Line(u"Qt"_s, QString::fromLatin1(qVersion()));
    text.Line(u"system"_s, QSysInfo::prettyProductName());
    text.Line(u"kernel"_s, QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion());
    text.Line(u"processor"_s, QSysInfo::currentCpuArchitecture());
    text.Line(u"language"_s, values::UserLocaleName());
    const QStorageInfo disk(folder);
    text.Line(u"disk of the folder"_s, u"%1 MB free of %2 MB, %3"_s.arg(disk.bytesAvailable() / Megabyte)
                                           .arg(disk.bytesTotal() / Megabyte)
                                           .arg(QString::fromLatin1(disk.fileSystemType())));
}

void AddFiles(Text& text, const QString& folder) {
    text.Head(u"Files"_s);
    for (const QString& name : FilesOfInterest)
        if (const QFileInfo file(QDir(folder).filePath(name)); file.exists())
            text.Line(name, u"%1 KB"_s.arg(Kilobytes(file.size())));
}

// A text is told where it is as it was delivered, or no more than a choice by number.
QString ShownSetting(const store::OptionsColumn& column, const values::Value& value) {
    if (value.IsNull()) return u"(none)"_s;
    if (column.type != store::Type::Text) return value.ToText();
    const QString text = value.ToText();
    constexpr qsizetype longestNumber = 2;
    bool isNumber = false;
    text.toInt(&isNumber);
    if (text.isEmpty()) return u"(empty)"_s;
    if (value == column.delivered || (isNumber && text.size() <= longestNumber)) return text;
    return u"(a text of its own)"_s;
}

void AddSettings(Text& text, store::Database& options) {
    auto row = options.OpenSnapshot(u"SELECT * FROM Options"_s);
    if (row.AtEOF()) return text.Line(u"there are none"_s);
    for (const store::OptionsColumn& column : store::OptionsColumns())
        text.Line(column.name, ShownSetting(column, row[column.name].Get()));
}

void AddTables(Text& text, store::Database& database) {
    for (const store::Table& table : database.GetSchema().tables)
        text.Line(table.name, u"%1 rows"_s.arg(CountRows(database, table.name)));
}

// By their texts, which are ours, and how many cases there are; never which.
void AddFindings(Text& text, const Findings& findings) {
    for (qsizetype i = 0; i < findings.DamageLines().size(); ++i) {
        const bool isOfSales = findings.Damages()[static_cast<size_t>(i)] == FindingKind::RibbonAhead;
        text.Line(u"damage"_s, isOfSales ? u"The ribbon of printed invoices has receipts that the store lacks"_s
                                         : values::WithoutNames(findings.DamageLines()[i]));
    }
    for (const Findings::Group& group : findings.Notes())
        text.Line(u"note"_s, u"%1: %2"_s.arg(group.text).arg(group.cases.size()));
    int differing = 0;
    for (const PeriodFact& period : findings.Periods()) {
        if (period.Agrees()) continue;
        ++differing;
        QStringList why;
        if (period.linesDiffer) why << u"lines"_s;
        if (period.taxDiffers) why << u"tax of the lines"_s;
        if (period.takingsDiffer) why << u"takings"_s;
        if (!period.leftOut.isEmpty()) why << u"numbers left out"_s;
        if (!period.twice.isEmpty()) why << u"numbers twice"_s;
        text.Line(period.isOpen ? u"open period"_s : u"End Report %1"_s.arg(period.endReport),
                  u"differs in "_s + why.join(u", "));
    }
    text.Line(u"periods"_s, u"%1, %2 of them differ"_s.arg(findings.Periods().size()).arg(differing));
    if (findings.IsSound()) text.Line(u"Both stores are sound."_s);
}

void AddCheck(Text& text, const QString& folder, const Progress& progress) {
    text.Head(u"What a check finds"_s);
    try {
        AddFindings(text, CheckRegister(folder, progress));
    } catch (const values::Error& error) {
        if (error.Number() == store::Cancelled) throw;
        text.Line(u"error %1"_s.arg(error.Number()), values::WithoutNames(error.Description()));
    }
}

void AddBackups(Text& text, const QString& folder) {
    text.Head(u"Backups"_s);
    const BackupState state = ReadBackupState(folder);
    text.Line(u"last good one"_s,
              state.good.isValid() ? u"%1, %2 KB"_s.arg(state.good.toString(MomentFormat)).arg(Kilobytes(state.bytes))
                                   : u"none"_s);
    if (!state.why.isEmpty())
        text.Line(u"failed"_s, u"%1: %2"_s.arg(state.failed.toString(MomentFormat), values::WithoutNames(state.why)));
}

void AddErrors(Text& text, const QString& folder) {
    static const QRegularExpression stamped(
        u"^(\\d{4}(?:-\\d\\d){2} \\d\\d(?::\\d\\d){2}\\tvelton[a-z-]*\\t\\d+)\\t(.*)$"_s);
    text.Head(u"The last errors that were told"_s);
    const QStringList errors = values::LastErrors(QDir(folder).filePath(u"errors.log"_s));
    if (errors.isEmpty()) return text.Line(u"none"_s);
    // Whatever else wrote there.
    for (const QString& line : errors) {
        const auto match = stamped.match(line);
        if (!match.hasMatch()) {
            text.Line(u"a line of another program"_s);
            continue;
        }
        const QString stamp = match.captured(1).replace(u'\t', u' ');
        text.Line(u"%1  %2"_s.arg(stamp, values::WithoutNames(match.captured(2))));
    }
}

// A store that can't be opened is told of by its number; why stands among the findings.
void AddStore(Text& text, const QString& name, const std::function<store::Place()>& find, const store::Schema& schema,
              const std::function<void(store::Database& database)>& add) {
    text.Head(name);
    try {
        const store::Place place = find();
        text.Line(u"place"_s, place.IsServer() ? u"a server"_s : u"a file"_s);
        const auto database = store::Database::Open(place, schema);
        text.Line(u"engine"_s, database->EngineVersion());
        add(*database);
    } catch (const values::Error& error) {
        text.Line(u"error"_s, QString::number(error.Number()));
    }
}

}  // namespace

QString SupportReport(const QString& folder, const Progress& progress) {
    Text text;
    AddSystem(text, folder);
    AddFiles(text, folder);
    AddStore(
        text, u"Main store"_s, [&] { return store::MainPlace(folder); }, store::MainSchema(),
        [&](store::Database& database) { AddTables(text, database); });
    AddStore(
        text, u"Settings of this till"_s, [&] { return store::OptionsPlace(folder); }, store::OptionsSchema(),
        [&](store::Database& database) { AddSettings(text, database); });
    text.Head(u"Small files"_s);
    for (const QString& line : IniReport(folder)) text.Line(line);
    AddCheck(text, folder, progress);
    AddBackups(text, folder);
    AddErrors(text, folder);
    return text.Take();
}

}  // namespace upkeep
