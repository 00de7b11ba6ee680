#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <optional>

namespace values {

// A small file of sections and keys in the program's folder, written by hand: UTF-8, or two bytes a character as
// editors of other systems save it, with any line ends; `;` and `#` begin a line of words. Values are taken as they
// stand but for the blanks around them: the usual reader of such files takes a comma for a list and a backslash for an
// escape.
class IniFile {
public:
    // Without entries when there is no such file. What cannot be read, is no file, or is longer than 64 KB throws a
    // FileError.
    static IniFile Read(const QString& path);

    struct Value {
        QString text;
        int line = 0;  // from 1
    };
    // What stands at a key, and where. Sections and keys go in any case; of two equal keys the later one counts.
    std::optional<Value> Find(const QString& section, const QString& key) const;
    std::optional<QString> Entry(const QString& section, const QString& key) const;
    struct Key {
        QString section;
        QString name;
        int line = 0;
    };
    // What there is, in the order of the lines.
    const QList<Key>& Keys() const { return keys_; }
    // Whether there is nothing but words and the heads of sections.
    bool IsSilent() const { return isSilent_; }

private:
    bool isSilent_ = true;
    QList<Key> keys_;
    QHash<QString, Value> entries_;  // by "section]key" in small letters
};

}  // namespace values
