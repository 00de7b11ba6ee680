#include "manager/SaveAs.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>

#include "forms/FileDialog.h"
#include "forms/MsgBox.h"

namespace manager {

QString AskSaveAs(QWidget* page, const QString& title, const QString& filter, const QStringList& suffixes) {
    QString path = forms::AskSaveName(page, title, filter);
    if (path.isEmpty()) return {};
    const auto isEnd = [&path](const QString& suffix) { return path.endsWith(suffix, Qt::CaseInsensitive); };
    if (std::ranges::none_of(suffixes, isEnd)) path += suffixes.first();
    const QString question = QCoreApplication::translate("manager::SaveAs", "%1 is there already. Replace it?");
    return !QFileInfo::exists(path) || forms::Ask(question.arg(path), title) ? path : QString();
}

}  // namespace manager
