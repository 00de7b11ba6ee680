#include "store/Recordset.h"

#include "store/ListingImpl.h"
#include "store/RecordsetImpl.h"
#include "store/Words.h"

namespace store {

Recordset::Recordset() = default;
Recordset::Recordset(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::AtEOF() const {
    return Open().position == Impl::Position::After;
}

bool Recordset::AtBOF() const {
    return Open().position == Impl::Position::Before || Open().IsEmpty();
}

void Recordset::MoveFirst() {
    Open().MoveTo(Open().rows->First());
}

void Recordset::MoveLast() {
    Open().MoveTo(Open().rows->Last());
}

void Recordset::MoveNext() {
    Open().Move(1);
}

void Recordset::MovePrevious() {
    Open().Move(-1);
}

void Recordset::Move(int rows) {
    Open().Move(rows);
}

qint64 Recordset::RecordCount() const {
    return Open().rows->KnownCount();
}

Listing Recordset::ListNow() {
    Impl& impl = Open();
    return Listing(std::make_unique<Listing::Impl>(impl.query, impl.rows->ReadNow()));
}

void Recordset::AddNew() {
    Open().AddNew();
}

void Recordset::Edit() {
    Open().Edit();
}

void Recordset::Update() {
    Open().Update();
}

void Recordset::CancelUpdate() {
    Open().DropEdit();
}

void Recordset::Delete() {
    Open().Delete();
}

EditState Recordset::EditMode() const {
    return Open().edit;
}

void Recordset::LockEdits(bool pessimistic) {
    Open().isPessimistic = pessimistic;
}

void Recordset::FindFirst(const QString& criteria) {
    Open().FindFirst(criteria);
}

bool Recordset::NoMatch() const {
    return Open().noMatch;
}

store::Bookmark Recordset::Bookmark() const {
    return {Open().CurrentRow()};
}

void Recordset::SetBookmark(store::Bookmark bookmark) {
    Open().SetBookmark(bookmark.row);
}

store::Bookmark Recordset::LastModified() const {
    if (!Open().lastModified) throw StoreError(NoCurrentRow, Words::tr("This cursor has not changed any row."));
    return {*Open().lastModified};
}

void Recordset::Close() {
    impl_.reset();
}

Recordset::Iterator Recordset::begin() {
    Impl& impl = Open();
    const CursorRows::Place first = impl.rows->First();
    if (first != CursorRows::Nowhere) impl.MoveTo(first);
    return Iterator(this);
}

}  // namespace store
