#include "values/ErrorLog.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArrayList>
#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>

#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

constexpr qsizetype LongestDescription = 300, KeptErrors = 100;
constexpr qint64 LargestFile = 64 * 1024;

// Nothing that blocks or leads elsewhere: no pipe, no link.
int OpenLog(const QString& path) {
    const int file = ::open(QFile::encodeName(path).constData(),
                            O_RDWR | O_CREAT | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (file < 0) return -1;
    struct stat facts {};
    if (::fstat(file, &facts) == 0 && S_ISREG(facts.st_mode)) return file;
    ::close(file);
    return -1;
}

QByteArrayList LastLines(const QByteArray& bytes) {
    QByteArrayList lines = bytes.split('\n');
    lines.removeAll(QByteArray());
    return lines.size() > KeptErrors ? lines.last(KeptErrors) : lines;
}

QByteArray ReadAll(int file, qint64 size) {
    QByteArray bytes(size, '\0');
    const auto read = ::pread(file, bytes.data(), static_cast<size_t>(size), 0);
    return read < 0 ? QByteArray() : bytes.first(read);
}

// Whole or not at all. A line that another program adds at this moment may be lost, never the file.
void Shorten(int file, const QString& path) {
    struct stat facts {};
    if (::fstat(file, &facts) != 0 || facts.st_size <= LargestFile) return;
    SaveFile(path, LastLines(ReadAll(file, std::min<qint64>(facts.st_size, 2 * LargestFile))).join('\n') + '\n');
}

}  // namespace

QString WithoutNames(const QString& text) {
    // A character of nobody's stands for a quotation until all rules have been kept.
    static const QString quotation(QChar(0xE000));
    static const std::pair<QRegularExpression, QString> rules[] = {
        {QRegularExpression(u"['‘][^'’]*['’]|[\"„“”][^\"“”]*[\"“”]|[»«][^»«]*[»«]"_s), quotation},
        {QRegularExpression(u"['\"„“«»‘].*$"_s, QRegularExpression::DotMatchesEverythingOption), quotation},
        {QRegularExpression(u"\\w+://\\S+|\\S+@\\S+|\\d+\\.\\d+\\.\\d+\\.\\d+(?::\\d+)?|\\S+:\\d{2,5}\\b"_s),
         u"(address)"_s},
        // A folder's name may hold blanks: from the first part of a path to the last.
        {QRegularExpression(u"\\S*[/\\\\]\\S*(?:.*[/\\\\]\\S*)?"_s, QRegularExpression::DotMatchesEverythingOption),
         u"(file)"_s},
        {QRegularExpression(u"\\d{6,}"_s), u"(number)"_s},
        {QRegularExpression(u"\\s+"_s), u" "_s},
        {QRegularExpression(quotation), u"'...'"_s},
    };
    QString result = text;
    for (const auto& [pattern, word] : rules) result.replace(pattern, word);
    return result.trimmed();
}

void LogError(const QString& path, const QDateTime& time, const QString& program, int number,
              const QString& description) noexcept {
    try {
        const QString line = QStringList{time.toString(u"yyyy-MM-dd hh:mm:ss"_s), program, QString::number(number),
                                         WithoutNames(description).left(LongestDescription)}
                                 .join(u'\t') +
                             u'\n';
        const QByteArray bytes = line.toUtf8();
        const int file = OpenLog(path);
        if (file < 0) return;
        const auto closed = qScopeGuard([file] { ::close(file); });
        (void)!::write(file, bytes.constData(), static_cast<size_t>(bytes.size()));
        Shorten(file, path);
    } catch (...) {
        return;
    }
}

QStringList LastErrors(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    if (file.size() > 2 * LargestFile) file.seek(file.size() - 2 * LargestFile);
    QStringList lines;
    for (const QByteArray& line : LastLines(file.read(2 * LargestFile))) lines << QString::fromUtf8(line);
    return lines;
}

}  // namespace values
