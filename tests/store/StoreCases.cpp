#include "store/CaseFold.h"
#include "store/LikePattern.h"
#include "store/StoreTestBase.h"
#include "support/CaseText.h"
#include "support/ValueOf.h"

namespace store::test {

// Plays a case of tests/data/store: a line is a word and what it is about, or several of them between "; ". Behind
// " => " stands what the last one gives, or "error NUMBER"; without it, none may fail. "other" before a word: by
// another handle of the same store.
//
//   add TABLE FIELD=TEXT | FIELD=TEXT, taxes ID | ID, products FROM TO     new rows
//   run QUERY            an action; gives the number of rows
//   rows QUERY           with the rows under it, cells divided by |
//   open QUERY, snapshot QUERY         the cursor that all that follows is about
//   first, last, next, previous, move N; find CRITERIA; mark, back (to it), modified (to the row last changed)
//   place                row, bof, eof; count, fields, name POSITION
//   get FIELD, at POSITION, value FIELD (with its kind); walk FIELD, walkback FIELD
//   new, edit, set FIELD=TEXT, update, cancel, delete, lock YES/NO, state, close
//   editall FIELD=TEXT   of every row on the way to the end
// Or it is one of the functions below, with a row a call.
class StoreCase : public StoreTest, public testing::WithParamInterface<drivers::CaseText> {
protected:
    using Word = std::function<QString(const QString& rest)>;

    void Play(const drivers::Step& block) {
        for (const drivers::Step& step : block.inner) {
            if (functions_.contains(step.text.section(u" in "_s, 0, 0)))
                CheckRows(step, functions_);
            else
                PlayStep(step);
        }
    }

private:
    void PlayStep(const drivers::Step& step) {
        QString outcome, expected = step.form;
        for (const QString& part : step.text.split(u"; "_s)) {
            EXPECT_FALSE(outcome.startsWith(u"error "))
                << step.file << ':' << step.line << ": " << outcome.toStdString();
            outcome = Outcome(part);
        }
        if (!step.inner.empty()) {
            QStringList rows;
            for (const drivers::Step& row : step.inner) rows += row.text;
            expected = rows.join(u'\n');
        }
        const bool isTold = !expected.isNull() || outcome.startsWith(u"error ") || step.text.contains(u"rows ");
        EXPECT_TRUE(!isTold || outcome == expected)
            << step.file << ':' << step.line << ": " << step.text.toStdString() << "\ngives " << outcome.toStdString()
            << "\nand not " << expected.toStdString();
    }

    QString Outcome(QString text) {
        const bool isOther = text.startsWith(u"other ");
        if (isOther && !other_) other_ = OpenAgain();
        if (isOther) text.remove(0, 6);
        at_ = isOther ? other_.get() : store.get();
        const QString word = text.section(u' ', 0, 0);
        if (!words_.contains(word)) return u"error: no word "_s + word;
        try {
            return words_[word](text.section(u' ', 1));
        } catch (const values::Error& error) {
            return u"error %1"_s.arg(error.Number());
        }
    }

    // Numbers that follow each other as "1..700".
    static QString Shortened(const QStringList& cells) {
        QStringList told;
        for (qsizetype first = 0, last = 0; first < cells.size(); first = ++last) {
            const int number = cells[first].toInt(), step = cells.value(first + 1).toInt() - number;
            while (qAbs(step) == 1 && last + 1 < cells.size() && cells[last + 1].toInt() == cells[last].toInt() + step)
                ++last;
            if (last < first + 2) last = first;
            told += last == first ? cells[first] : cells[first] + u".."_s + cells[last];
        }
        return told.join(u", "_s);
    }
    QString Walk(const QString& field, bool backward) {
        QStringList cells;
        if (!backward)
            for (auto& row : rows_) cells += row[field].Text();
        else
            for (rows_.MoveLast(); !rows_.AtBOF(); rows_.MovePrevious()) cells += rows_[field].Text();
        return Shortened(cells);
    }
    QString Place() const {
        EXPECT_EQ(rows_.RecordCount() > 0, !(rows_.AtBOF() && rows_.AtEOF()));
        return rows_.AtBOF() && rows_.AtEOF() ? u"none"_s
               : rows_.AtBOF()                ? u"bof"_s
               : rows_.AtEOF()                ? u"eof"_s
                                              : u"row"_s;
    }
    QString EditAll(const QString& fields) {
        int count = 0;
        for (rows_.MoveFirst(); !rows_.AtEOF(); rows_.MoveNext(), ++count) {
            rows_.Edit();
            drivers::SetFields(rows_, fields);
            rows_.Update();
        }
        return QString::number(count);
    }

    // What a field takes and then gives, at once and when it is read again.
    QString Stored(const QString& table, const QString& field, const QString& written) const {
        auto rows = store->OpenRecordset(u"SELECT * FROM "_s + table);
        rows.AddNew();
        rows[field] = drivers::ValueOf(written);
        const QString pending = drivers::Told(rows[field].Get());
        rows.Update();
        rows.SetBookmark(rows.LastModified());
        EXPECT_EQ(drivers::Told(rows[field].Get()), pending);
        rows.Delete();
        return pending;
    }
    // What a row of this quantity holds in the field that is assigned.
    QString Assigned(const QString& quantity, const QString& assignment) const {
        Database::Batch batch(*store);
        AddRows(*store, u"Products"_s, {u"ProdCode=12A | Tab=-1 | Qty="_s + quantity});
        store->Execute(u"UPDATE Products SET "_s + assignment);
        auto rows = store->OpenRecordset(u"SELECT %1 FROM Products"_s.arg(assignment.section(u' ', 0, 0)));
        return rows[0].TextOrEmpty();
    }

    std::unique_ptr<Database> other_;
    Database* at_ = nullptr;
    Recordset rows_;
    Bookmark mark_;

    const QMap<QString, Word> words_{
        {u"add"_s,
         [this](auto& rest) { return AddRows(*at_, rest.section(u' ', 0, 0), {rest.section(u' ', 1)}), QString(); }},
        {u"taxes"_s, [this](auto& rest) { return AddTaxes(rest.split(u" | "_s)), QString(); }},
        {u"products"_s,
         [this](auto& rest) {
             return AddProducts(rest.section(u' ', 0, 0).toInt(), rest.section(u' ', 1).toInt()), QString();
         }},
        {u"run"_s, [this](auto& rest) { return QString::number(at_->Execute(rest)); }},
        {u"rows"_s, [this](auto& rest) { return RowsOf(*at_, rest).join(u'\n'); }},
        {u"open"_s, [this](auto& rest) { return rows_ = at_->OpenRecordset(rest), QString(); }},
        {u"snapshot"_s, [this](auto& rest) { return rows_ = at_->OpenSnapshot(rest), QString(); }},
        {u"first"_s, [this](auto&) { return rows_.MoveFirst(), QString(); }},
        {u"last"_s, [this](auto&) { return rows_.MoveLast(), QString(); }},
        {u"next"_s, [this](auto&) { return rows_.MoveNext(), QString(); }},
        {u"previous"_s, [this](auto&) { return rows_.MovePrevious(), QString(); }},
        {u"move"_s, [this](auto& rest) { return rows_.Move(rest.toInt()), QString(); }},
        {u"find"_s, [this](auto& rest) { return rows_.FindFirst(rest), rows_.NoMatch() ? u"none"_s : u"found"_s; }},
        {u"mark"_s, [this](auto&) { return mark_ = rows_.Bookmark(), QString(); }},
        {u"back"_s, [this](auto&) { return rows_.SetBookmark(mark_), QString(); }},
        {u"modified"_s, [this](auto&) { return rows_.SetBookmark(rows_.LastModified()), QString(); }},
        {u"place"_s, [this](auto&) { return Place(); }},
        {u"count"_s, [this](auto&) { return QString::number(rows_.RecordCount()); }},
        {u"fields"_s, [this](auto&) { return QString::number(rows_.FieldCount()); }},
        {u"name"_s, [this](auto& rest) { return rows_.FieldName(rest.toInt()); }},
        {u"get"_s, [this](auto& rest) { return rows_[rest].Text(); }},
        {u"at"_s, [this](auto& rest) { return rows_[rest.toInt()].Text(); }},
        {u"value"_s, [this](auto& rest) { return drivers::Told(rows_[rest].Get()); }},
        {u"walk"_s, [this](auto& rest) { return Walk(rest, false); }},
        {u"walkback"_s, [this](auto& rest) { return Walk(rest, true); }},
        {u"new"_s, [this](auto&) { return rows_.AddNew(), QString(); }},
        {u"edit"_s, [this](auto&) { return rows_.Edit(), QString(); }},
        {u"set"_s, [this](auto& rest) { return drivers::SetFields(rows_, rest), QString(); }},
        {u"editall"_s, [this](auto& rest) { return EditAll(rest); }},
        {u"update"_s, [this](auto&) { return rows_.Update(), QString(); }},
        {u"cancel"_s, [this](auto&) { return rows_.CancelUpdate(), QString(); }},
        {u"delete"_s, [this](auto&) { return rows_.Delete(), QString(); }},
        {u"lock"_s, [this](auto& rest) { return rows_.LockEdits(rest == u"yes"), QString(); }},
        {u"state"_s,
         [this](auto&) {
             return QStringList{u"none"_s, u"editing"_s, u"adding"_s}[static_cast<int>(rows_.EditMode())];
         }},
        {u"close"_s, [this](auto&) { return rows_.Close(), QString(); }},
    };
    const QMap<QString, drivers::Function> functions_{
        {u"Stored"_s, [this](auto& at) { return Stored(at[0], at[1], at[2]); }},
        {u"Assigned"_s, [this](auto& at) { return Assigned(at[0], at[1]); }},
        {u"Products where"_s,
         [this](auto& at) { return Rows(u"SELECT ProdCode FROM Products WHERE "_s + at[0]).join(u", "); }},
        {u"Compared"_s,
         [](auto& at) {
             const int order = CompareFolded(at[0].toUtf8(), at[1].toUtf8());
             return QString(order < 0 ? u'<' : order > 0 ? u'>' : u'=');
         }},
        {u"Like"_s, [](auto& at) { return LikePattern(at[1].toUtf8()).Matches(at[0].toUtf8()) ? u"yes"_s : u"no"_s; }},
        {u"Twice"_s,
         [this](auto& at) {
             return AddRows(*store, at[0], {at[1], at[1]}), QString();
         }},
    };
};

TEST_P(StoreCase, GivesWhatItsLinesSay) {
    Play(GetParam().steps);
}

INSTANTIATE_TEST_SUITE_P(Store, StoreCase,
                         testing::ValuesIn(drivers::ReadCases(u"store"_s,
                                                              {u"cursor"_s, u"edit"_s, u"membership"_s, u"fields"_s,
                                                               u"calculations"_s, u"texts"_s})),
                         [](const auto& info) { return info.param.name.toStdString(); });

}  // namespace store::test
