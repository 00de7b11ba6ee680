// The list of products: opening it until it is painted, and one letter typed into its search until the first rows of
// the answer are painted, or until all of them are known, too.

#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QSqlTableModel>
#include <QTableView>
#include <QVBoxLayout>

#include "bench/Figures.h"
#include "bench/QtSqlStore.h"
#include "bench/RawStore.h"
#include "bench/UntilPainted.h"
#include "forms/Controls.h"
#include "masterdata/products/frmArtikli.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

constexpr int CodeColumn = 1;
constexpr qint64 RowsMadeTexts = 1000;
constexpr qint64 Frame = 16'000'000;  // nanoseconds
constexpr qint64 UntilNextKey = 100;  // milliseconds, in which all rows come in

enum class Where { AtBeginning, Anywhere };
enum class Rows { First, All };

// A word typed over and over, letter by letter.
class Typing {
public:
    // The text of the search box after the next letter.
    QString Next() {
        length_ = length_ % word_.size() + 1;
        return word_.first(length_);
    }

private:
    const QString word_ = u"kafa"_s;
    qsizetype length_ = 0;
};

// The list is known by its first and its tenth code.
qint64 DigestOf(const QString& firstCode, const QString& tenthCode) {
    return firstCode.toLongLong() % 1'000'000 + tenthCode.toLongLong() % 1'000'000;
}

class ProductList {
public:
    ProductList() {
        form_.Show();
        UntilPainted{*list_};
    }
    ~ProductList() { form_.Unload(); }

    void Look(Where where) {
        auto* option = form_.findChild<QRadioButton*>(where == Where::Anywhere ? u"Option1"_s : u"Option2"_s);
        option->click();
        UntilPainted{*list_};
    }

    qint64 Type(const QString& text, Rows rows) {
        Press(text);
        UntilPainted{*list_};
        return Digest() + (rows == Rows::All ? list_->Count() : 0);
    }

    // The longest turn of the event loop from this key to the next.
    qint64 LongestTurn(const QString& text) {
        QElapsedTimer sinceKey, turn;
        sinceKey.start();
        turn.start();
        Press(text);
        qint64 longest = turn.nsecsElapsed();
        while (!sinceKey.hasExpired(UntilNextKey)) {
            turn.start();
            QCoreApplication::processEvents();
            longest = std::max(longest, turn.nsecsElapsed());
        }
        return longest;
    }

    qint64 Digest() const { return DigestOf(list_->Text(0), list_->Text(9)); }

private:
    void Press(const QString& text) {
        auto* box = form_.findChild<QLineEdit*>(u"cboTemp"_s);
        if (text.size() == 1) box->selectAll();
        const QChar letter = text.back();
        QKeyEvent key(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, letter);
        QCoreApplication::sendEvent(box, &key);
    }

    frmArtikli form_;
    forms::ListView* list_ = form_.findChild<forms::ListView*>(u"lv1"_s);
};

Work OpenOurs(const BusyTill& till) {
    const auto program = std::make_shared<LoggedIn>(till);
    return [program] { return ProductList().Digest(); };
}

Work SearchOurs(const BusyTill& till, Where where, Rows rows) {
    const auto program = std::make_shared<LoggedIn>(till);
    const auto list = std::make_shared<ProductList>();
    list->Look(where);
    return [program, list, rows, typing = Typing()]() mutable { return list->Type(typing.Next(), rows); };
}

Work HoldOurs(const BusyTill& till, Where where) {
    const auto program = std::make_shared<LoggedIn>(till);
    const auto list = std::make_shared<ProductList>();
    list->Look(where);
    return [program, list, typing = Typing()]() mutable { return list->LongestTurn(typing.Next()); };
}

// What Qt has for the same: a table model reads 256 rows and the others as they are scrolled to, so that nobody knows
// how many there are.
class TableWindow {
public:
    explicit TableWindow(const QSqlDatabase& database) : model_(nullptr, database) {
        model_.setTable(u"Products"_s);
        view_.setModel(&model_);
        view_.verticalHeader()->hide();
        (new QVBoxLayout(&window_))->addWidget(&view_);
        window_.resize(1000, 640);
    }

    qint64 Open() {
        model_.select();
        window_.show();
        UntilPainted{view_};
        return Digest();
    }

    qint64 Search(const QString& text, Where where, Rows rows) {
        const QString before = where == Where::Anywhere ? u"%"_s : QString();
        model_.setFilter(u"ProdDescription LIKE '"_s + before + text + u"%'"_s);
        while (rows == Rows::All && model_.canFetchMore()) model_.fetchMore();
        UntilPainted{view_};
        return Digest() + (rows == Rows::All ? model_.rowCount() : 0);
    }

private:
    qint64 Digest() const { return DigestOf(Code(0), Code(9)); }
    QString Code(int row) const { return model_.data(model_.index(row, CodeColumn)).toString(); }

    QWidget window_;
    QSqlTableModel model_;
    QTableView view_;
};

Work OpenTable(const BusyTill& till) {
    const auto qtSql = std::make_shared<QtSqlStore>(till.StorePath());
    return [qtSql] { return TableWindow(qtSql->Database()).Open(); };
}

Work SearchTable(const BusyTill& till, Where where, Rows rows) {
    const auto qtSql = std::make_shared<QtSqlStore>(till.StorePath());
    const auto table = std::make_shared<TableWindow>(qtSql->Database());
    table->Open();
    return
        [qtSql, table, where, rows, typing = Typing()]() mutable { return table->Search(typing.Next(), where, rows); };
}

// All rows counted, and the texts of those that a list shows in its first thousand.
qint64 ReadByHand(RawStatement& statement, Rows digest) {
    QStringList codes;
    qint64 count = 0;
    for (; statement.Step(); ++count) {
        if (count >= RowsMadeTexts) continue;
        codes += statement.Text(CodeColumn);
        for (int column = CodeColumn + 1; column <= 9; ++column) statement.Text(column);
    }
    statement.Reset();
    return DigestOf(codes.value(0), codes.value(9)) + (digest == Rows::All ? count : 0);
}

constexpr auto AllByHand =
    "SELECT ID, ProdCode, ProdDescription, Qty, Unit, UnitPrice, TaxPercent, UnitPricebezPDV, VPUnitPrice, "
    "VPUnitPricebezPDV FROM Products";
constexpr auto FoundByHand =
    "SELECT ID, ProdCode, ProdDescription, Qty, Unit, UnitPrice, TaxPercent, UnitPricebezPDV, VPUnitPrice, "
    "VPUnitPricebezPDV FROM Products WHERE ProdDescription LIKE ?1";

Work OpenByHand(const BusyTill& till) {
    const auto raw = std::make_shared<RawStore>(till.StorePath());
    const auto all = std::make_shared<RawStatement>(raw->Prepare(AllByHand));
    return [raw, all] { return ReadByHand(*all, Rows::First); };
}

Work SearchByHand(const BusyTill& till, Where where) {
    const auto raw = std::make_shared<RawStore>(till.StorePath());
    const auto found = std::make_shared<RawStatement>(raw->Prepare(FoundByHand));
    return [raw, found, where, typing = Typing()]() mutable {
        const QByteArray before = where == Where::Anywhere ? "%" : "";
        const QByteArray pattern = before + typing.Next().toUtf8() + '%';
        found->Bind(1, pattern);
        return ReadByHand(*found, Rows::All);
    };
}

}  // namespace

Figure ProductListFigure(const BusyTill& till) {
    return {.name = "open the list of products until painted",
            .ours = [&till] { return OpenOurs(till); },
            .yardsticks = {{"raw SQLite, texts, not painted", [&till] { return OpenByHand(till); }, 1},
                           {"QSqlTableModel, 256 rows, painted", [&till] { return OpenTable(till); }}}};
}

Figure FirstFoundFigure(const BusyTill& till, bool anywhere) {
    const Where where = anywhere ? Where::Anywhere : Where::AtBeginning;
    return {.name = anywhere ? "a key in the search, anywhere, first rows" : "a key in the search, first rows",
            .ours = [&till, where] { return SearchOurs(till, where, Rows::First); },
            .yardsticks = {{"QSqlTableModel, 256 rows, painted",
                            [&till, where] { return SearchTable(till, where, Rows::First); }, 1.2}}};
}

Figure HoldFigure(const BusyTill& till, bool anywhere) {
    const Where where = anywhere ? Where::Anywhere : Where::AtBeginning;
    return {.name = anywhere ? "a key in the search, anywhere, longest hold" : "a key in the search, longest hold",
            .ours = [&till, where] { return HoldOurs(till, where); },
            .yardsticks = {{"a frame", [] { return [] { return Frame; }; }, 1}},
            .iterations = 1,
            .timesItself = true};
}

Figure AllFoundFigure(const BusyTill& till, bool anywhere) {
    const Where where = anywhere ? Where::Anywhere : Where::AtBeginning;
    return {
        .name = anywhere ? "a key in the search, anywhere, all rows" : "a key in the search, all rows",
        .ours = [&till, where] { return SearchOurs(till, where, Rows::All); },
        .yardsticks = {{"raw SQLite, texts, not painted", [&till, where] { return SearchByHand(till, where); }},
                       {"QSqlTableModel, painted", [&till, where] { return SearchTable(till, where, Rows::All); }, 1}}};
}

}  // namespace bench
