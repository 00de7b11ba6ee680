#pragma once

#include <QString>
#include <memory>

#include "store/Listing.h"
#include "store/Schema.h"
#include "store/StoreError.h"
#include "values/Value.h"

namespace store {

class Database;
class Recordset;

// One field of the current row, or of the row being added or changed. Reads give the pending value once it is written.
class Field {
public:
    values::Value Get() const;
    void Set(const values::Value& value);

    Field(const Field&) = default;
    Field& operator=(const values::Value& value) {
        Set(value);
        return *this;
    }
    // Copies the value; a field stays the field it is.
    Field& operator=(const Field& other) {
        if (this != &other) Set(other.Get());
        return *this;
    }
    operator values::Value() const { return Get(); }

    bool IsNull() const { return Get().IsNull(); }
    QString Text() const { return Get().ToText(); }  // null throws 94
    QString TextOrEmpty() const { return Get().TextOrEmpty(); }
    values::Money Money() const { return Get().ToMoney(); }
    values::Money MoneyOrZero() const { return IsNull() ? values::Money() : Money(); }
    double Double() const { return Get().ToDouble(); }
    qint64 Whole() const { return Get().ToWhole(); }
    bool YesNo() const { return Get().ToBool(); }

private:
    friend class Recordset;
    Field(Recordset& recordset, int column) : recordset_(recordset), column_(column) {}
    Recordset& recordset_;
    int column_;
};

// Identity of a row within its cursor.
struct Bookmark {
    qint64 row = 0;
    bool operator==(const Bookmark&) const = default;
};

enum class EditState { None, Editing, Adding };

// A cursor over the rows of a query.
//
// On one table without aggregates it is an updatable keyset: membership is fixed at opening plus the cursor's own
// additions, each move re-reads the row, a row deleted elsewhere answers 3167. On a join or an aggregate the rows are
// taken at opening and cannot be changed (3027). Opening costs the same whatever the table's size, and no read
// transaction stays open between two calls. It may not outlive its Database.
class Recordset {
public:
    Recordset();  // closed; every call but assignment throws NoCurrentRow
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    bool IsOpen() const { return impl_ != nullptr; }

    // Position. A cursor with rows opens on its first.
    bool AtEOF() const;
    bool AtBOF() const;
    void MoveFirst();  // on an empty cursor: 3021; so are MoveLast, and MoveNext past the end
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    void Move(int rows);  // Move(0) re-reads the current row
    // Above 0 when there is a row; the full count after MoveLast.
    qint64 RecordCount() const;

    // The rows of the cursor as they all are now, of one moment, without those that were deleted.
    Listing ListNow();

    // Fields, by name (case ignored) or by position from 0; 3265 for a name that the cursor does not have.
    Field operator[](QStringView name);
    Field operator[](int position);
    int FieldCount() const;
    QString FieldName(int position) const;

    // Changes. Update is one commit of its own; when it throws, the edit stays pending.
    void AddNew();
    void Edit();
    void Update();
    void CancelUpdate();
    void Delete();
    EditState EditMode() const;
    // false: optimistic, Update fails with 3197 when the row changed since Edit read it. true (at opening): Edit takes
    // the row as it is and Update overwrites.
    void LockEdits(bool pessimistic);

    // The first row, from the start of the cursor, that meets a criteria text; otherwise NoMatch and the row stays.
    void FindFirst(const QString& criteria);
    bool NoMatch() const;

    store::Bookmark Bookmark() const;
    void SetBookmark(store::Bookmark bookmark);
    // The row last added or changed through this cursor.
    store::Bookmark LastModified() const;

    void Close();

    // for (auto& row : recordset) walks from the first row to the end.
    class Iterator {
    public:
        explicit Iterator(Recordset* recordset) : recordset_(recordset) {}
        Recordset& operator*() const { return *recordset_; }
        Iterator& operator++() {
            recordset_->MoveNext();
            return *this;
        }
        bool operator!=(std::nullptr_t) const { return !recordset_->AtEOF(); }

    private:
        Recordset* recordset_;
    };
    Iterator begin();
    std::nullptr_t end() const { return nullptr; }

private:
    friend class Database;
    friend class Field;
    struct Impl;
    explicit Recordset(std::unique_ptr<Impl> impl);
    Impl& Open() const;
    std::unique_ptr<Impl> impl_;
};

}  // namespace store
