#include <algorithm>
#include <cstring>

#include "store/Conversion.h"
#include "store/RecordsetImpl.h"
#include "store/Words.h"

namespace store {

namespace {

// Programs nearly always write a name as the schema does.
bool SameName(QStringView a, QStringView b) {
    if (a.size() != b.size()) return false;
    const auto bytes = static_cast<size_t>(a.size()) * sizeof(QChar);
    return std::memcmp(a.utf16(), b.utf16(), bytes) == 0 || a.compare(b, Qt::CaseInsensitive) == 0;
}

}  // namespace

int Recordset::Impl::Resolve(QStringView name) {
    const auto& output = query.plan->output;
    const int next = lastResolved + 1;
    if ((resolvedBefore >> (next & 63) & 1) != 0 && next < 64 && SameName(output[next].name, name))
        return lastResolved = next;
    for (int i = 0; i < output.size(); ++i) {
        if (!SameName(output[i].name, name)) continue;
        if (i < 64) resolvedBefore |= quint64{1} << i;
        return lastResolved = i;
    }
    throw StoreError(ItemNotFound, Words::tr("This cursor has no field %1.").arg(name));
}

void Recordset::Impl::CheckColumn(int column) const {
    if (column < 0 || column >= query.plan->output.size())
        throw StoreError(ItemNotFound, Words::tr("This cursor has no field at position %1.").arg(column));
}

const CursorRows::Data& Recordset::Impl::Current() {
    if (data.rows == nullptr) {
        CurrentRow();
        data = rows->Load(place);
    } else if (keyset != nullptr && engine.KnowsOfCommits() && !keyset->StillThere()) {
        data = keyset->Confirm(place);
    }
    if (data.rows->Gone(data.index)) ThrowDeleted();
    return data;
}

const dialect::BoundValue* Recordset::Impl::Pending(int column) const {
    const int field = Output(column).field;
    const auto found = std::ranges::find(changes, field, &FieldChange::column);
    return found == changes.end() ? nullptr : &found->value;
}

values::Value Recordset::Impl::Get(int column) {
    const dialect::OutputColumn& output = Output(column);
    if (edit == EditState::None) {
        const CursorRows::Data& row = Current();
        return FromStored(*row.rows, row.rows->At(row.index, column), output);
    }
    if (const auto* pending = Pending(column)) return FromStored(*pending, output.type);
    if (edit == EditState::Editing) return FromStored(original, original.At(0, column), output);
    return output.field < 0 ? values::Value() : query.plan->table->columns[output.field].byDefault;
}

void Recordset::Impl::Set(int column, const values::Value& value) {
    RequireUpdatable();
    if (edit == EditState::None)
        throw StoreError(NoEditPending, Words::tr("A field was written without AddNew or Edit."));
    const int field = Output(column).field;
    if (field < 0) throw StoreError(ReadOnly, Words::tr("The field %1 is computed.").arg(Output(column).name));

    const Column& target = query.plan->table->columns[field];
    dialect::BoundValue stored = ToStored(value, target.type);
    if (target.selfNumbering) {
        if (edit == EditState::Editing) throw StoreError(ReadOnly, Words::tr("%1 numbers itself.").arg(target.name));
        const auto* number = std::get_if<qint64>(&stored);
        if (number != nullptr && *number <= 0)
            throw StoreError(ConversionFailed, Words::tr("%1 counts from 1.").arg(target.name));
    }
    const auto at = std::ranges::lower_bound(changes, field, {}, &FieldChange::column);
    if (at != changes.end() && at->column == field)
        at->value = std::move(stored);
    else
        changes.insert(at, {field, std::move(stored)});
}

Recordset::Impl& Recordset::Open() const {
    if (!impl_) throw StoreError(NoCurrentRow, Words::tr("The cursor is closed."));
    return *impl_;
}

values::Value Field::Get() const {
    return recordset_.Open().Get(column_);
}

void Field::Set(const values::Value& value) {
    recordset_.Open().Set(column_, value);
}

Field Recordset::operator[](QStringView name) {
    return {*this, Open().Resolve(name)};
}

Field Recordset::operator[](int position) {
    Open().CheckColumn(position);
    return {*this, position};
}

int Recordset::FieldCount() const {
    return static_cast<int>(Open().query.plan->output.size());
}

QString Recordset::FieldName(int position) const {
    Open().CheckColumn(position);
    return Open().Output(position).name;
}

}  // namespace store
