#pragma once

#include <QElapsedTimer>
#include <QString>

class QKeyEvent;

namespace forms {

// Knows a scanner by its haste: at least three characters, no gap of more than 50 ms between two keys. Keys are taken
// as they arrive, so those that queued up while the program was busy count as hasty; where the window system says when
// they were typed, a pause of the program does not tear a code apart either.
class ScanBurst {
public:
    static constexpr int LongestGap = 50;  // milliseconds

    // Whether a key belongs to the burst so far.
    bool IsFollowedBy(const QKeyEvent& key) const;
    // The burst goes on with this key, or begins anew; characters are kept.
    void Add(const QKeyEvent& key);
    // The code was told: what follows hastily belongs to it still, characters begin another one.
    void EndCode() { code_.clear(); }
    void Forget();

    bool IsScan() const;
    // The Enter behind a scanner's code.
    bool IsEndedBy(const QKeyEvent& key) const;
    const QString& Code() const { return code_; }

private:
    QString code_;
    QElapsedTimer sinceLast_;
    quint64 lastStamp_ = 0;
};

// Keys that put a character into a box, the space bar among them.
bool IsCharacter(const QKeyEvent& key);
bool IsEnter(const QKeyEvent& key);
bool IsModifier(const QKeyEvent& key);

}  // namespace forms
