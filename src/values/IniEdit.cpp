#include "values/IniEdit.h"

#include <QFile>
#include <QRegularExpression>

#include "values/FileError.h"
#include "values/Words.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

const QRegularExpression LineBreaks(u"[\\r\\n]+"_s);

bool IsHead(const QByteArray& line) {
    return line.trimmed().startsWith('[');
}

QByteArray SectionOf(const QByteArray& head) {
    const QByteArray word = head.trimmed();
    return word.endsWith(']') ? word.sliced(1, word.size() - 2).trimmed().toLower() : word;
}

// Empty for a line of words.
QByteArray KeyOf(const QByteArray& line) {
    const QByteArray entry = line.trimmed();
    const bool isWords = entry.startsWith(';') || entry.startsWith('#');
    return isWords ? QByteArray() : entry.first(std::max<qsizetype>(entry.indexOf('='), 0)).trimmed().toLower();
}

}  // namespace

IniEdit::IniEdit(const QString& path) : file_(path) {
    QFile before(path);
    if (!before.exists()) return;
    if (!before.open(QIODevice::ReadOnly)) throw FileError(before, FileWork::Reading);
    QByteArray text = before.readAll();
    if (text.contains('\0'))
        throw FileError(InvalidCall, Words::tr("'%1' is not in UTF-8 and can't be changed.").arg(path));
    if (text.startsWith("\xEF\xBB\xBF")) text.remove(0, 3);
    if (!text.contains('\n')) text.replace('\r', '\n');
    if (text.contains("\r\n")) lineEnd_ = "\r\n";
    lines_ = text.split('\n');
    if (lines_.last().isEmpty()) lines_.removeLast();
}

void IniEdit::Set(const QString& section, const QString& key, const QString& value) {
    const QByteArray line = (key + u'=' + QString(value).replace(LineBreaks, u" "_s).trimmed()).toUtf8();
    Replace(section.toLower().toUtf8(), key.toLower().toUtf8(), &line);
}

void IniEdit::Remove(const QString& section, const QString& key) {
    Replace(section.toLower().toUtf8(), key.toLower().toUtf8(), nullptr);
}

void IniEdit::Replace(const QByteArray& section, const QByteArray& key, const QByteArray* line) {
    const QByteArray end = lineEnd_.chopped(1);
    qsizetype place = -1;
    bool isWithin = false, isSaid = line == nullptr;
    for (qsizetype i = 0; i < lines_.size(); ++i) {
        if (IsHead(lines_[i])) isWithin = SectionOf(lines_[i]) == section;
        if (!isWithin) continue;
        if (!lines_[i].trimmed().isEmpty()) place = i + 1;
        if (IsHead(lines_[i]) || KeyOf(lines_[i]) != key) continue;
        if (isSaid) {
            lines_.removeAt(i--);
            continue;
        }
        lines_[i] = *line + end;
        isSaid = true;
    }
    if (isSaid) return;
    if (place < 0) {
        if (!lines_.isEmpty()) lines_ += end;
        lines_ += '[' + section + ']' + end;
        place = lines_.size();
    }
    lines_.insert(place, *line + end);
}

void IniEdit::Prepare() {
    const QByteArray text = lines_.isEmpty() ? QByteArray() : lines_.join('\n') + '\n';
    if (!file_.open(QIODevice::WriteOnly) || !file_.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) ||
        file_.write(text) != text.size() || !file_.flush())
        throw FileError(file_, FileWork::Writing);
}

void IniEdit::PutInPlace() {
    if (!file_.commit()) throw FileError(file_, FileWork::Writing);
}

}  // namespace values
