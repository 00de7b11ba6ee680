#include "forms/FileDialog.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QPointer>
#include <QStandardPaths>
#include <QUrl>

#include "forms/FocusReturn.h"
#include "forms/Program.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

QString AskName(QFileDialog* made, QFileDialog::FileMode mode = QFileDialog::AnyFile) {
    if (ProgramIsEnding()) throw ProgramEnds{};
    const FocusReturn focus;
    const QPointer<QFileDialog> dialog = made;
    // A missing name is no business of the dialog: the screens have their own words for it.
    dialog->setFileMode(mode);
    const bool chosen = dialog->exec() == QDialog::Accepted && dialog;
    const QStringList names = chosen ? dialog->selectedFiles() : QStringList();
    delete dialog;
    if (ProgramIsEnding()) throw ProgramEnds{};
    focus.GiveBack();
    return names.value(0);
}

// Where sticks and other disks are mounted, as the kernel lists it: a share that no longer answers holds nobody up.
QStringList MountedDisks() {
    QStringList disks;
    QFile mounts(u"/proc/self/mounts"_s);
    if (!mounts.open(QIODevice::ReadOnly)) return disks;
    for (QByteArray line : mounts.readAll().split('\n')) {
        line = line.split(' ').value(1);
        for (const auto& [code, letter] : {std::pair{"\\040", " "}, {"\\011", "\t"}, {"\\012", "\n"}, {"\\134", "\\"}})
            line.replace(code, letter);
        const QString path = QFile::decodeName(line);
        for (const auto& below : {u"/media/"_s, u"/run/media/"_s, u"/mnt/"_s})
            if (path.startsWith(below)) disks += path;
    }
    return disks;
}

// Beside the files, so that nobody has to know where a stick is found.
QList<QUrl> Places() {
    QStringList paths{QDir::homePath()};
    for (const auto place :
         {QStandardPaths::DesktopLocation, QStandardPaths::DocumentsLocation, QStandardPaths::DownloadLocation})
        if (const QString path = QStandardPaths::writableLocation(place); QDir(path).exists()) paths += path;
    paths += MountedDisks();
    paths.removeDuplicates();
    QList<QUrl> places{QUrl(u"file:"_s)};  // the whole computer
    for (const QString& path : std::as_const(paths)) places += QUrl::fromLocalFile(path);
    return places;
}

QFileDialog* NewDialog(QWidget* parent, const QString& title, const QString& filter) {
    auto* dialog = new QFileDialog(parent ? parent->window() : nullptr, title, QString(), filter);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->setSidebarUrls(Places());
    return dialog;
}

}  // namespace

QString AskSaveName(QWidget* parent, const QString& title, const QString& filter) {
    QFileDialog* dialog = NewDialog(parent, title, filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setObjectName(u"CDL1"_s);
    return AskName(dialog);
}

QString AskOpenName(QWidget* parent, const QString& title, const QString& filter) {
    QFileDialog* dialog = NewDialog(parent, title, filter);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    return AskName(dialog);
}

QString AskFolder(QWidget* parent, const QString& title) {
    QFileDialog* dialog = NewDialog(parent, title, {});
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return AskName(dialog, QFileDialog::Directory);
}

}  // namespace forms
