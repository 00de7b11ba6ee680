#include "upkeep/goods/UndoFile.h"

#include <QDir>

#include "upkeep/ValueText.h"
#include "upkeep/Words.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;
using values::Value;

namespace upkeep {

namespace {

constexpr int Kept = 10;
const auto Certain = u".tsv"_s, Uncertain = u".new"_s;
const QByteArray Head = "velton-undo\t1";

QDir FolderOf(const QString& folder) {
    return QDir(QDir(folder).filePath(u"undo"_s));
}

// The oldest first.
QStringList FilesIn(const QDir& folder) {
    return folder.entryList({u"??????"_s + Certain, u"??????"_s + Uncertain}, QDir::Files, QDir::Name);
}

// A cell of its own tells a null from an empty text.
QByteArray Cell(const Value& value) {
    return value.IsNull() ? "-"_ba : '=' + WriteValue(value);
}

store::Type TypeOf(GoodsColumn column) {
    const store::Table& products = *store::MainSchema().Find(u"Products");
    return products.columns[products.Find(StoreField(column))].type;
}

class UndoReader {
public:
    explicit UndoReader(const QString& path) : file_(path) {}

    UndoRecord Read() {
        if (!file_.open(QIODevice::ReadOnly)) throw values::FileError(file_, values::FileWork::Reading);
        const QByteArrayList lines = file_.readAll().split('\n');
        if (lines.size() < 4 || lines[0] != Head || lines[lines.size() - 2] != "end") Refuse();
        UndoRecord record{.path = file_.fileName(),
                          .title = {},
                          .time = {},
                          .lastInvoice = 0,
                          .isCertain = file_.fileName().endsWith(Certain),
                          .changes = {}};
        try {
            for (qsizetype i = 1; i < lines.size() - 2; ++i) Take(lines[i].split('\t'), record);
        } catch (const store::StoreError&) {
            Refuse();
        }
        return record;
    }

private:
    [[noreturn]] void Refuse() const {
        throw values::FileError(
            values::PathFault,
            Words::tr("'%1' is damaged, so what it tells of can't be taken back.").arg(file_.fileName()));
    }

    static QString TextIn(const QByteArray& cell) { return ReadValue(cell, store::Type::Text).TextOrEmpty(); }

    Value ValueIn(const QByteArray& cell, GoodsColumn column) const {
        if (cell == "-") return {};
        if (!cell.startsWith('=')) Refuse();
        const bool isEmptyText = cell.size() == 1 && TypeOf(column) == store::Type::Text;
        return isEmptyText ? Value(QString(u""_s)) : ReadValue(cell.sliced(1), TypeOf(column));
    }

    void Take(const QByteArrayList& cells, UndoRecord& record) const {
        const QByteArray& word = cells[0];
        if (word == "title" && cells.size() == 2) {
            record.title = TextIn(cells[1]);
        } else if (word == "time" && cells.size() == 2) {
            record.time = QDateTime::fromString(QString::fromLatin1(cells[1]), Qt::ISODate);
        } else if (word == "invoice" && cells.size() == 2) {
            record.lastInvoice = cells[1].toLongLong();
        } else if ((word == "new" || word == "changed") && cells.size() == 2) {
            record.changes.push_back({.code = TextIn(cells[1]), .isNew = word == "new", .columns = {}});
        } else if (word == "column" && cells.size() == 4 && !record.changes.empty()) {
            const GoodsColumn column = ColumnIn(cells[1]);
            record.changes.back().Set(column, ValueIn(cells[2], column), ValueIn(cells[3], column));
        } else {
            Refuse();
        }
    }

    GoodsColumn ColumnIn(const QByteArray& field) const {
        for (size_t i = 0; i < GoodsColumns; ++i)
            if (StoreField(static_cast<GoodsColumn>(i)) == QString::fromLatin1(field))
                return static_cast<GoodsColumn>(i);
        Refuse();
    }

    QFile file_;
};

QByteArray TextOf(const UndoRecord& record) {
    QByteArray text = Head + "\ntitle\t" + WriteText(record.title) + "\ntime\t" +
                      record.time.toString(Qt::ISODate).toLatin1() + "\ninvoice\t" +
                      QByteArray::number(record.lastInvoice) + '\n';
    for (const GoodsChange& change : record.changes) {
        text += (change.isNew ? "new\t" : "changed\t") + WriteText(change.code) + '\n';
        for (const ColumnChange& column : change.columns)
            text += "column\t" + StoreField(column.column).toLatin1() + '\t' + Cell(column.before) + '\t' +
                    Cell(column.after) + '\n';
    }
    return text + "end\n";
}

}  // namespace

QString KeepForUndo(const QString& folder, const UndoRecord& record) {
    const QDir undo = FolderOf(folder);
    if (!undo.mkpath(u"."_s))
        throw values::FileError(values::PathFault, Words::tr("The folder '%1' can't be made.").arg(undo.path()));
    const QStringList files = FilesIn(undo);
    const int number = files.isEmpty() ? 1 : files.last().first(6).toInt() + 1;
    const QString path = undo.filePath(QString::number(number).rightJustified(6, u'0') + Uncertain);
    values::SaveFile(path, TextOf(record));
    return path;
}

void DropUndo(const QString& path) {
    QFile::remove(path);
}

void MakeUndoCertain(const QString& path) {
    QFile::rename(path, path.chopped(Uncertain.size()) + Certain);
    const QDir undo = QFileInfo(path).dir();
    QStringList files = FilesIn(undo);
    while (files.size() > Kept) QFile::remove(undo.filePath(files.takeFirst()));
}

bool HasUndo(const QString& folder) {
    return !FilesIn(FolderOf(folder)).isEmpty();
}

std::optional<UndoRecord> LastUndo(const QString& folder) {
    const QDir undo = FolderOf(folder);
    const QStringList files = FilesIn(undo);
    if (files.isEmpty()) return {};
    return UndoReader(undo.filePath(files.last())).Read();
}

}  // namespace upkeep
