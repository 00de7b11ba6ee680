#include "upkeep/BackupPlan.h"

#include <QDir>
#include <algorithm>

#include "upkeep/Words.h"
#include "values/IniEdit.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto Section = u"backup"_s;
const auto Folder = u"folder"_s;

struct Count {
    const char16_t* name;
    int BackupPlan::*number;
    int least;
};

constexpr Count Counts[] = {{u"days", &BackupPlan::days, BackupPlan::LeastDays},
                            {u"weeks", &BackupPlan::weeks, 0},
                            {u"months", &BackupPlan::months, 0}};

QString Refusal(const Count& count, const values::IniFile::Value& value) {
    constexpr int longestShown = 48;
    return Words::tr("velton.ini, line %1: %2 can't be \"%3\", only a number from %4 to %5.")
        .arg(QString::number(value.line), QString::fromUtf16(count.name), value.text.left(longestShown),
             QString::number(count.least), QString::number(BackupPlan::Most));
}

}  // namespace

bool IsBackupKey(const QString& section, const QString& name) {
    if (section.compare(Section, Qt::CaseInsensitive) != 0) return false;
    return name.compare(Folder, Qt::CaseInsensitive) == 0 || std::ranges::any_of(Counts, [&](const Count& count) {
               return name.compare(QStringView(count.name), Qt::CaseInsensitive) == 0;
           });
}

BackupPlan ReadBackupPlan(const values::IniFile& ini, const QString& registerFolder, QStringList& refused) {
    BackupPlan plan;
    QString folder = ini.Entry(Section, Folder).value_or(QString());
    if (folder.startsWith(u"~/")) folder = QDir::home().filePath(folder.sliced(2));
    if (!folder.isEmpty()) plan.folder = QDir::cleanPath(QDir(registerFolder).absoluteFilePath(folder));
    for (const Count& count : Counts) {
        const auto value = ini.Find(Section, QString::fromUtf16(count.name));
        if (!value) continue;
        bool isNumber = false;
        const int number = value->text.toInt(&isNumber);
        if (isNumber && number >= count.least && number <= BackupPlan::Most)
            plan.*count.number = number;
        else
            refused += Refusal(count, *value);
    }
    return plan;
}

BackupPlan ReadBackupPlan(const QString& registerFolder) {
    QStringList refused;
    return ReadBackupPlan(values::IniFile::Read(QDir(registerFolder).filePath(u"velton.ini"_s)), registerFolder,
                          refused);
}

void KeepSoMany(const BackupPlan& plan, const QString& registerFolder) {
    values::IniEdit ini(QDir(registerFolder).filePath(u"velton.ini"_s));
    for (const Count& count : Counts)
        ini.Set(Section, QString::fromUtf16(count.name), QString::number(plan.*count.number));
    ini.Save();
}

}  // namespace upkeep
