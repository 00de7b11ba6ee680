#pragma once

#include <QHash>
#include <QStringList>

#include "store/Database.h"
#include "upkeep/Findings.h"

// References between tables, which the store does not enforce. Keys are compared without case; an empty key stands for
// a null.
namespace upkeep {

struct TableField {
    QString table;
    QString field;

    QString Name() const { return table + u'.' + field; }
};

// A place in a list that has one entry a key.
using Place = size_t;
constexpr Place Nowhere = static_cast<Place>(-1);

// The places of keys, counted up as they are added. The same key often comes many times in a row, and most are numbers.
class KeyPlaces {
public:
    Place Find(const QString& key) const;
    // A new key gets the next place.
    Place FindOrAdd(const QString& key);

private:
    mutable QString last_;
    mutable Place lastPlace_ = Nowhere;
    QHash<quint64, Place> numbers_;
    QHash<QString, Place> texts_;
};

// A key as a note names it.
QString ShownKey(const QString& key);

// Keys once each, as first spelled and in the order in which they are met.
class DistinctKeys {
public:
    void Meet(const QString& key) {
        if (places_.FindOrAdd(key) == static_cast<Place>(list_.size())) list_.append(key);
    }
    bool Contains(const QString& key) const { return places_.Find(key) != Nowhere; }
    const QStringList& List() const { return list_; }

private:
    KeyPlaces places_;
    QStringList list_;
};

// Each value of a field.
DistinctKeys KeysOf(store::Database& main, const TableField& field);

// Each of the keys of `from` that is not among those of `to` becomes a note.
void NoteUnknown(const QString& from, const DistinctKeys& keys, const QString& to, const DistinctKeys& known,
                 FindingKind kind, Findings& findings);

}  // namespace upkeep
