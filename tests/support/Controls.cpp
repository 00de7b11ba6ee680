#include "support/Controls.h"

#include <QDir>
#include <QLineEdit>

#include "forms/Controls.h"
#include "forms/ListView.h"
#include "player/Keys.h"

using namespace Qt::StringLiterals;

namespace drivers {

QString Box(const QWidget& form, QStringView name) {
    const auto* control = Get<QWidget>(form, name);
    return control ? forms::TextOf(control) : QString();
}

void Type(const QWidget& form, QStringView name, QStringView keys) {
    auto* box = Get<QWidget>(form, name);
    if (!box) return;
    Settle();
    box->setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(box)) line->selectAll();
    Keys(keys);
}

std::vector<QStringList> List(const QWidget& form, QStringView name) {
    std::vector<QStringList> rows;
    const auto* list = Get<forms::ListView>(form, name);
    if (!list) return rows;
    for (int row = 0; row < list->Count(); ++row) {
        QStringList cells;
        for (int column = 0; column < list->model()->columnCount(); ++column) cells << list->Text(row, column);
        rows.push_back(cells);
    }
    return rows;
}

QString Grab(QWidget& widget, const QString& name) {
    Settle();
    const QString folder = qEnvironmentVariable("VELTON_SCREENS", QString::fromUtf8(SCREENS_FOLDER));
    QDir().mkpath(folder);
    const QString path = folder + u'/' + name + u".png"_s;
    EXPECT_TRUE(widget.grab().save(path)) << "cannot write " << qPrintable(path);
    return path;
}

}  // namespace drivers
