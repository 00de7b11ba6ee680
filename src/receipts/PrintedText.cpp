#include "receipts/PrintedText.h"

#include <QFile>
#include <QTemporaryDir>

#include "output/Channel.h"
#include "output/CodePage.h"

using namespace Qt::StringLiterals;

QString PrintedText(const std::function<void()>& print) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"text"_s));
    output::Channel1().OpenForOutput(file.fileName());
    print();
    output::Channel1().Close();
    return file.open(QIODevice::ReadOnly) ? output::FromCodePage(file.readAll()).remove(u'\r') : QString();
}
