#pragma once

#include <QDateTime>
#include <optional>

#include "upkeep/goods/GoodsChange.h"

namespace upkeep {

// What was written at once to many goods, as it is kept for taking it back: a file a time in the folder `undo` of the
// register, the last ten of them. It is there before the store is written and is certain once that is done; where the
// process ends, or the server is lost, between both, only the store can tell whether it holds the changes.
struct UndoRecord {
    QString path;
    QString title;
    QDateTime time;
    qint64 lastInvoice = 0;  // the highest InvoiceID at that moment
    bool isCertain = false;
    std::vector<GoodsChange> changes;
};

// Gives the path of the file, which is not certain yet. What can't be written is a FileError.
QString KeepForUndo(const QString& folder, const UndoRecord& record);
// The store holds its changes; the oldest files go where there are too many.
void MakeUndoCertain(const QString& path);
void DropUndo(const QString& path);

bool HasUndo(const QString& folder);
// The last one; none when there is none. A file that is damaged throws a FileError.
std::optional<UndoRecord> LastUndo(const QString& folder);

}  // namespace upkeep
