#include <algorithm>

#include "store/RecordsetImpl.h"
#include "store/Words.h"

namespace store {

void Recordset::Impl::RequireUpdatable() const {
    if (keyset == nullptr) throw StoreError(ReadOnly, Words::tr("The rows of this cursor cannot be changed."));
}

void Recordset::Impl::AddNew() {
    RequireUpdatable();
    DropEdit();
    edit = EditState::Adding;
}

void Recordset::Impl::Edit() {
    RequireUpdatable();
    CurrentRow();
    DropEdit();
    data = {};
    data = rows->Load(place);
    if (data.rows->Gone(data.index)) ThrowDeleted();
    original = data.rows->Row(data.index);
    edit = EditState::Editing;
}

void Recordset::Impl::Update() {
    RequireUpdatable();
    switch (edit) {
        case EditState::None:
            throw StoreError(NoEditPending, Words::tr("Update without AddNew or Edit."));
        case EditState::Adding:
            lastModified = engine.Insert(*query.plan->table, changes);
            keyset->Add(*lastModified);
            break;
        case EditState::Editing:
            if (!changes.empty()) WriteEdit();
            lastModified = CurrentRow();
            data = {};
            break;
    }
    DropEdit();
}

void Recordset::Impl::WriteEdit() {
    const qint64 row = CurrentRow();
    const std::vector<FieldChange> expected = isPessimistic ? std::vector<FieldChange>() : FieldsAsRead();
    if (engine.Change(*query.plan->table, row, changes, expected)) return;
    if (RowBlock now; !keyset->Read(row, now)) ThrowDeleted();
    throw StoreError(RowChanged, Words::tr("The row was changed by another user."));
}

// The fields that Edit read, as they were then.
std::vector<FieldChange> Recordset::Impl::FieldsAsRead() const {
    const auto& output = query.plan->output;
    std::vector<FieldChange> fields;
    for (int field = 0; field < query.plan->table->columns.size(); ++field) {
        const auto found = std::ranges::find(output, field, &dialect::OutputColumn::field);
        if (found != output.end())
            fields.push_back({field, original.ValueAt(0, static_cast<int>(found - output.begin()))});
    }
    return fields;
}

void Recordset::Impl::DropEdit() {
    edit = EditState::None;
    changes.clear();
}

void Recordset::Impl::Delete() {
    RequireUpdatable();
    const qint64 row = CurrentRow();
    DropEdit();
    if (!engine.Remove(*query.plan->table, row)) ThrowDeleted();
    data = {};
    position = Position::Deleted;
    keyset->Remove(place);
}

}  // namespace store
