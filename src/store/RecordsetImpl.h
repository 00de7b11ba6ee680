#pragma once

#include <optional>

#include "store/KeysetRows.h"
#include "store/Recordset.h"

namespace store {

struct Recordset::Impl {
    // Deleted: on the place of a row that this cursor deleted, before its successor.
    enum class Position { Before, OnRow, Deleted, After };

    // A keyset, or rows that were taken already.
    Impl(Engine& itsEngine, dialect::Compiler& itsCompiler, dialect::Query itsQuery);
    Impl(Engine& itsEngine, dialect::Compiler& itsCompiler, dialect::Query itsQuery,
         std::unique_ptr<SnapshotRows> itsRows);
    void OpenOnFirst();

    // Position
    bool IsEmpty() const { return position == Position::After && rows->KnownCount() == 0; }
    void MoveTo(CursorRows::Place target);  // 3021 when it is nowhere
    void Move(int count);
    void StepForward();
    void StepBack();
    void RequireRow() const;
    qint64 CurrentRow() const;
    void SetBookmark(qint64 row);
    void FindFirst(const QString& criteria);

    [[noreturn]] static void ThrowDeleted();

    // Fields
    const dialect::OutputColumn& Output(int column) const { return query.plan->output[column]; }
    int Resolve(QStringView name);
    void CheckColumn(int column) const;
    const CursorRows::Data& Current();
    values::Value Get(int column);
    void Set(int column, const values::Value& value);
    const dialect::BoundValue* Pending(int column) const;

    // Changes
    void RequireUpdatable() const;
    void AddNew();
    void Edit();
    void Update();
    void WriteEdit();
    std::vector<FieldChange> FieldsAsRead() const;
    void DropEdit();
    void Delete();

    Engine& engine;
    dialect::Compiler& compiler;
    dialect::Query query;
    std::unique_ptr<CursorRows> rows;
    KeysetRows* keyset = nullptr;  // the same rows when they can be changed

    Position position = Position::After;
    CursorRows::Place place = CursorRows::Nowhere;
    CursorRows::Data data;  // of the current row, once loaded; never without one
    // Programs read the fields of every row in one order: the next of those found before is tried first.
    int lastResolved = -1;
    quint64 resolvedBefore = 0;
    bool noMatch = false;

    EditState edit = EditState::None;
    std::vector<FieldChange> changes;  // by column
    RowBlock original;                 // the row as Edit read it
    bool isPessimistic = true;
    std::optional<qint64> lastModified;
};

}  // namespace store
