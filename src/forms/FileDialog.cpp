#include "forms/FileDialog.h"

#include <QFileDialog>
#include <QPointer>

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

QFileDialog* NewDialog(QWidget* parent, const QString& title, const QString& filter) {
    auto* dialog = new QFileDialog(parent ? parent->window() : nullptr, title, QString(), filter);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
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
