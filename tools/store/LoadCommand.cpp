#include <QFile>

#include "Commands.h"
#include "delivery/FileError.h"
#include "delivery/TableLoader.h"

using namespace Qt::StringLiterals;

namespace tool {

void Load(const QString& folder, const QString& table, const QString& file) {
    const auto database = OpenStore(folder, Which::Main);
    QFile lines(file);
    if (!lines.open(QIODevice::ReadOnly)) throw delivery::FileError(lines, u"read '%1'"_s.arg(file));
    store::Database::Batch batch(*database);
    delivery::LoadRows(*database, table, lines);
    if (lines.error() != QFileDevice::NoError) throw delivery::FileError(lines, u"read '%1'"_s.arg(file));
    batch.Commit();
}

}  // namespace tool
