#pragma once

#include <QDir>

namespace upkeep {

// A store goes with its log: what may lie beside its file, and nothing for the file itself.
QStringList StoreEndings();

// The last part of a restore, which may be killed at any moment and be gone through again: a folder with what is to
// come, the main store apart, and a file that says so.
class RestoreSteps {
public:
    explicit RestoreSteps(const QString& registerFolder);

    // What comes into the register's folder, by the names there.
    QDir Coming() const { return coming_; }
    // Where the main store waits: beside its place. With `place` empty, as for a server, among the others.
    QString ComingStore(const QString& place) const;

    bool IsUnderWay() const;
    // From here on the steps are known to whoever comes after a kill. `keptAs` is a name in the register's folder.
    void Begin(const QString& comingStore, const QString& oldStore, const QString& keptAs);
    // Goes on where the main store has come into its place, and else takes all back.
    void End();
    void TakeBack();

private:
    void Replace(const QString& name, const QDir& kept);

    const QDir register_;
    const QDir coming_;
    const QString file_;
};

}  // namespace upkeep
