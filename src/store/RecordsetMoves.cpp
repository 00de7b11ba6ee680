#include "store/RecordsetImpl.h"
#include "store/Words.h"

namespace store {

namespace {

[[noreturn]] void ThrowNoCurrentRow() {
    throw StoreError(NoCurrentRow, Words::tr("No current row."));
}

}  // namespace

Recordset::Impl::Impl(Engine& itsEngine, dialect::Compiler& itsCompiler, dialect::Query itsQuery)
    : engine(itsEngine), compiler(itsCompiler), query(std::move(itsQuery)) {
    auto updatable = std::make_unique<KeysetRows>(engine, query);
    keyset = updatable.get();
    rows = std::move(updatable);
    OpenOnFirst();
}

Recordset::Impl::Impl(Engine& itsEngine, dialect::Compiler& itsCompiler, dialect::Query itsQuery,
                      std::unique_ptr<SnapshotRows> itsRows)
    : engine(itsEngine), compiler(itsCompiler), query(std::move(itsQuery)), rows(std::move(itsRows)) {
    OpenOnFirst();
}

void Recordset::Impl::OpenOnFirst() {
    place = rows->First();
    if (place == CursorRows::Nowhere) return;
    position = Position::OnRow;
    data = rows->Load(place);
}

void Recordset::Impl::ThrowDeleted() {
    throw StoreError(RowDeleted, Words::tr("The row was deleted."));
}

void Recordset::Impl::RequireRow() const {
    if (position == Position::Before || position == Position::After) ThrowNoCurrentRow();
}

qint64 Recordset::Impl::CurrentRow() const {
    RequireRow();
    if (position == Position::Deleted) ThrowDeleted();
    return rows->RowAt(place);
}

void Recordset::Impl::MoveTo(CursorRows::Place target) {
    if (target == CursorRows::Nowhere) ThrowNoCurrentRow();
    DropEdit();
    data = {};
    place = target;
    position = Position::OnRow;
    data = rows->Load(place);
}

void Recordset::Impl::Move(int count) {
    DropEdit();
    if (count == 0) RequireRow();
    if (count > 0 && position == Position::After) ThrowNoCurrentRow();
    if (count < 0 && (position == Position::Before || IsEmpty())) ThrowNoCurrentRow();

    data = {};
    for (; count > 0 && position != Position::After; --count) StepForward();
    for (; count < 0 && position != Position::Before; ++count) StepBack();
    if (position == Position::OnRow) data = rows->Load(place);
}

void Recordset::Impl::StepForward() {
    CursorRows::Place next;
    if (position == Position::Before)
        next = rows->First();
    else
        next = rows->Next(position == Position::Deleted ? place - 1 : place);
    position = next == CursorRows::Nowhere ? Position::After : Position::OnRow;
    place = next;
}

void Recordset::Impl::StepBack() {
    const CursorRows::Place previous = position == Position::After ? rows->Last() : rows->Previous(place);
    position = previous == CursorRows::Nowhere ? Position::Before : Position::OnRow;
    place = previous;
}

void Recordset::Impl::SetBookmark(qint64 row) {
    const CursorRows::Place target = rows->Find(row, place);
    if (target == CursorRows::Nowhere) throw StoreError(RowDeleted, Words::tr("The marked row is not in this cursor."));
    MoveTo(target);
}

void Recordset::Impl::FindFirst(const QString& criteria) {
    if (keyset == nullptr) throw StoreError(NotSupported, Words::tr("This cursor cannot be searched."));
    const std::vector<qint64> found = engine.FindRows(compiler.CompileCriteria(criteria, *query.plan->table));
    const CursorRows::Place target = keyset->FirstOf(found);
    noMatch = target == CursorRows::Nowhere;
    if (noMatch)
        DropEdit();
    else
        MoveTo(target);
}

}  // namespace store
