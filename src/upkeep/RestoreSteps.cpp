#include "upkeep/RestoreSteps.h"

#include "store/StorePath.h"
#include "upkeep/FileCopy.h"
#include "values/IniEdit.h"
#include "values/IniFile.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

const auto Section = u"restore"_s;
const auto Restored = u".restored"_s;

}  // namespace

QStringList StoreEndings() {
    return {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s};
}

RestoreSteps::RestoreSteps(const QString& registerFolder)
    : register_(QDir(registerFolder).absolutePath()),
      coming_(register_.filePath(u".restore.part"_s)),
      file_(register_.filePath(u"restore.todo"_s)) {}

QString RestoreSteps::ComingStore(const QString& place) const {
    return place.isEmpty() ? coming_.filePath(store::MainFile) : place + Restored;
}

bool RestoreSteps::IsUnderWay() const {
    return QFile::exists(file_);
}

void RestoreSteps::Begin(const QString& comingStore, const QString& oldStore, const QString& keptAs) {
    MakeFolder(register_.filePath(keptAs));
    values::IniEdit steps(file_);
    steps.Set(Section, u"coming"_s, comingStore);
    steps.Set(Section, u"old"_s, oldStore);
    steps.Set(Section, u"kept"_s, keptAs);
    steps.Save();
    SyncFolder(register_.path());
}

void RestoreSteps::Replace(const QString& name, const QDir& kept) {
    for (const QString& ending : StoreEndings()) {
        const QString there = register_.filePath(name + ending);
        if (QFileInfo::exists(there) && !kept.exists(name + ending)) Rename(there, kept.filePath(name + ending));
    }
    Rename(coming_.filePath(name), register_.filePath(name));
}

void RestoreSteps::End() {
    const auto steps = values::IniFile::Read(file_);
    const auto entry = [&steps](const QString& key) { return steps.Entry(Section, key).value_or(QString()); };
    if (QFile::exists(entry(u"coming"_s))) return TakeBack();
    const QDir kept(register_.filePath(entry(u"kept"_s)));
    for (const QString& name : coming_.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        Replace(name, kept);
    const QFileInfo old(entry(u"old"_s));
    if (old.isFile() && old.absolutePath() == register_.absolutePath())
        Rename(old.filePath(), kept.filePath(store::MainFile));
    SyncFolder(kept.path());
    RemoveFolder(coming_.path());
    SyncFolder(register_.path());
    QFile::remove(file_);
}

void RestoreSteps::TakeBack() {
    if (IsUnderWay()) {
        const auto steps = values::IniFile::Read(file_);
        const QString old = steps.Entry(Section, u"old"_s).value_or(QString());
        const QString coming = steps.Entry(Section, u"coming"_s).value_or(QString());
        const QString place = coming.endsWith(Restored) ? coming.chopped(Restored.size()) : QString();
        // The old one has a second name, or only this one where it was put aside already.
        const bool hasBoth = QFile::exists(place);
        for (const QString& ending : StoreEndings()) {
            if (place.isEmpty() || !QFile::exists(old + ending)) continue;
            if (hasBoth)
                QFile::remove(old + ending);
            else
                Rename(old + ending, place + ending);
        }
        register_.rmdir(steps.Entry(Section, u"kept"_s).value_or(QString()));
        QFile::remove(coming);
    }
    RemoveFolder(coming_.path());
    QFile::remove(file_);
}

}  // namespace upkeep
