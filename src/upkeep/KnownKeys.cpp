#include "upkeep/KnownKeys.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

// A key of digits alone as one number that holds its length too, since 007 and 7 are two keys; 0 for any other key.
quint64 AsNumber(const QString& key) {
    constexpr qsizetype longest = 16;
    constexpr int lengthShift = 56;
    if (key.isEmpty() || key.size() > longest) return 0;
    quint64 number = 0;
    for (const QChar c : key) {
        if (c < u'0' || c > u'9') return 0;
        number = number * 10 + (c.unicode() - u'0');
    }
    return static_cast<quint64>(key.size()) << lengthShift | number;
}

}  // namespace

Place KeyPlaces::Find(const QString& key) const {
    if (lastPlace_ != Nowhere && key == last_) return lastPlace_;
    last_ = key;
    const quint64 number = AsNumber(key);
    return lastPlace_ = number != 0 ? numbers_.value(number, Nowhere) : texts_.value(key.toCaseFolded(), Nowhere);
}

Place KeyPlaces::FindOrAdd(const QString& key) {
    if (const Place place = Find(key); place != Nowhere) return place;
    lastPlace_ = static_cast<Place>(numbers_.size() + texts_.size());
    if (const quint64 number = AsNumber(key); number != 0)
        numbers_.insert(number, lastPlace_);
    else
        texts_.insert(key.toCaseFolded(), lastPlace_);
    return lastPlace_;
}

QString ShownKey(const QString& key) {
    return key.isEmpty() ? u"(empty)"_s : key;
}

DistinctKeys KeysOf(store::Database& main, const TableField& field) {
    DistinctKeys keys;
    auto rows = main.OpenSnapshot(u"SELECT [%1] FROM [%2]"_s.arg(field.field, field.table));
    for (auto& row : rows) keys.Meet(row[0].TextOrEmpty());
    return keys;
}

void NoteUnknown(const QString& from, const DistinctKeys& keys, const QString& to, const DistinctKeys& known,
                 FindingKind kind, Findings& findings) {
    for (const QString& key : keys.List())
        if (!known.Contains(key)) findings.Note(u"%1 that has no %2"_s.arg(from, to), ShownKey(key), kind);
}

}  // namespace upkeep
