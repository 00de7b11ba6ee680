#include <QSet>

#include "Commands.h"
#include "ToolWords.h"
#include "upkeep/TableLoader.h"
#include "values/FileError.h"

namespace tool {

void Insert(const QString& folder, const QString& tableName, const QStringList& fields, Which which) {
    const auto database = OpenStore(folder, which);
    const store::Table& table = upkeep::FindTable(*database, tableName);
    auto rows = upkeep::OpenTable(*database, table);
    QSet<int> named;
    rows.AddNew();
    for (const QString& field : fields) {
        const qsizetype equals = field.indexOf(u'=');
        if (equals < 1)
            throw values::FileError(values::InvalidCall,
                                    ToolWords::tr("'%1' is not of the form FIELD=VALUE.").arg(field));
        const int column = upkeep::FindField(table, field.first(equals));
        if (named.contains(column))
            throw store::StoreError(store::AmbiguousName,
                                    ToolWords::tr("The field '%1' stands there twice.").arg(field.first(equals)));
        named.insert(column);
        upkeep::SetField(rows, table.columns[column], field.sliced(equals + 1).toUtf8());
    }
    rows.Update();
}

}  // namespace tool
