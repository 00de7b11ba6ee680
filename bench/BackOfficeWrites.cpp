// What the back office writes at once: every product's place on the click table, and a recipe of two hundred parts.

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QSqlQuery>
#include <QTimer>

#include "bench/Figures.h"
#include "bench/QtSqlStore.h"
#include "bench/RawStore.h"
#include "core/dbModule.h"
#include "forms/Controls.h"
#include "masterdata/clicktable/ClickTable.h"
#include "masterdata/clicktable/frmKlikTabla.h"
#include "masterdata/products/frmSastav.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

constexpr int PlacedAutomatically = ClickTable::ButtonCount - 1;
constexpr int Parts = 200;
constexpr qint64 QuantityOfPart = 5'000;

const auto PlacedQuery = u"SELECT Count(*) FROM Products WHERE Tab > -1"_s;
const auto PartsQuery = u"SELECT * FROM ProductsCon WHERE SIF = '%1'"_s;
const auto PartCountQuery = u"SELECT Count(*) FROM ProductsCon WHERE SIF = '%1'"_s;

constexpr auto PlaceSql = "UPDATE Products SET Tab = ? WHERE ProdCode = ?";
constexpr auto PlacedSql = "SELECT count(*) FROM Products WHERE Tab > -1";
constexpr auto DropPartsSql = "DELETE FROM ProductsCon WHERE SIF = ?";
constexpr auto AddPartSql = "INSERT INTO ProductsCon (SIF, CONsif, ConSIFQty) VALUES (?, ?, ?)";
constexpr auto PartsSql = "SELECT count(*) FROM ProductsCon WHERE SIF = ?";

int PlaceOf(int product) {
    return product < PlacedAutomatically ? product : -1;
}

// The codes of all products in the order of the store; the first one is made of some of the others.
class Codes {
public:
    explicit Codes(const BusyTill& till) {
        RawStore raw(till.StorePath());
        auto products = raw.Prepare("SELECT ProdCode FROM Products");
        while (products.Step()) codes_ += products.Text(0);
    }

    int Count() const { return static_cast<int>(codes_.size()); }
    const QString& At(int product) const { return codes_[product]; }
    const QString& Whole() const { return codes_[0]; }
    const QString& Part(int part) const { return codes_[1 + part]; }

private:
    QStringList codes_;
};

void Press(forms::Form& form, QStringView button) {
    qobject_cast<QAbstractButton*>(forms::Control(&form, button))->click();
}

void AnswerNextBoxWithYes() {
    QTimer::singleShot(0, qApp, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box) box->button(QMessageBox::Yes)->click();
    });
}

qint64 CountOf(const QString& query) {
    return MainStore().OpenRecordset(query)[0].Whole();
}

Work PlaceOurs(const BusyTill& till) {
    const auto program = std::make_shared<LoggedIn>(till);
    const auto form = std::make_shared<frmKlikTabla>();
    form->Load();
    return [program, form] {
        AnswerNextBoxWithYes();
        Press(*form, u"cmdAutomatic");
        return CountOf(PlacedQuery);
    };
}

// The composition of a product beside the screen of that product, as the screen knows it.
class Composition {
public:
    explicit Composition(const BusyTill& till) : codes_(till), program_(till) {
        WriteParts();
        auto* code = new QLineEdit(codes_.Whole(), &editor_);
        code->setObjectName(u"txtProdCode"_s);
        editor_.setObjectName(u"frmEditProduct"_s);
        editor_.Load();
        form_.Load();
    }

    qint64 Save() {
        Press(form_, u"cmdSave");
        return CountOf(PartCountQuery.arg(codes_.Whole()));
    }

private:
    void WriteParts() const {
        store::Database::Batch batch(MainStore());
        ExecuteSql(u"DELETE FROM ProductsCon WHERE SIF = '%1'"_s.arg(codes_.Whole()));
        auto parts = MainStore().OpenRecordset(PartsQuery.arg(codes_.Whole()));
        for (int i = 0; i < Parts; ++i) {
            parts.AddNew();
            parts[u"SIF"] = codes_.Whole();
            parts[u"CONsif"] = codes_.Part(i);
            parts[u"ConSIFQty"] = values::Money::FromUnits(QuantityOfPart);
            parts.Update();
        }
        batch.Commit();
    }

    Codes codes_;
    LoggedIn program_;
    forms::Form editor_;
    frmSastav form_;
};

Work SaveOurs(const BusyTill& till) {
    const auto composition = std::make_shared<Composition>(till);
    return [composition] { return composition->Save(); };
}

// The same statements by hand, each prepared once; a batch is brought to the disk as the store does it.
class HandWriter {
public:
    explicit HandWriter(const BusyTill& till) : codes_(till), raw_(till.StorePath()) {}

    qint64 Place() {
        Run(begin_);
        for (int i = 0; i < codes_.Count(); ++i) {
            const QByteArray code = codes_.At(i).toUtf8();
            place_.Bind(1, qint64{PlaceOf(i)});
            place_.Bind(2, code);
            Run(place_);
        }
        Commit();
        return Count(placed_);
    }

    qint64 Save() {
        const QByteArray whole = codes_.Whole().toUtf8();
        Run(begin_);
        dropParts_.Bind(1, whole);
        Run(dropParts_);
        addPart_.Bind(1, whole);
        addPart_.Bind(3, QuantityOfPart);
        for (int i = 0; i < Parts; ++i) {
            const QByteArray part = codes_.Part(i).toUtf8();
            addPart_.Bind(2, part);
            Run(addPart_);
        }
        Commit();
        parts_.Bind(1, whole);
        return Count(parts_);
    }

private:
    static void Run(RawStatement& statement) {
        statement.Step();
        statement.Reset();
    }
    static qint64 Count(RawStatement& statement) {
        statement.Step();
        const qint64 count = statement.Integer(0);
        statement.Reset();
        return count;
    }
    void Commit() {
        Run(commit_);
        raw_.SyncLog();
    }

    Codes codes_;
    RawStore raw_;
    RawStatement begin_ = raw_.Prepare("BEGIN IMMEDIATE"), commit_ = raw_.Prepare("COMMIT");
    RawStatement place_ = raw_.Prepare(PlaceSql), placed_ = raw_.Prepare(PlacedSql);
    RawStatement dropParts_ = raw_.Prepare(DropPartsSql), addPart_ = raw_.Prepare(AddPartSql);
    RawStatement parts_ = raw_.Prepare(PartsSql);
};

Work ByHand(const BusyTill& till, qint64 (HandWriter::*write)()) {
    const auto writer = std::make_shared<HandWriter>(till);
    return [writer, write] { return (*writer.*write)(); };
}

class QtSqlWriter {
public:
    explicit QtSqlWriter(const BusyTill& till) : codes_(till), store_(till.StorePath()) {}

    qint64 Place() {
        QSqlQuery place = Prepared(PlaceSql);
        store_.Database().transaction();
        for (int i = 0; i < codes_.Count(); ++i) {
            place.bindValue(0, PlaceOf(i));
            place.bindValue(1, codes_.At(i));
            place.exec();
        }
        store_.Database().commit();
        return Count(Prepared(PlacedSql));
    }

    qint64 Save() {
        QSqlQuery dropParts = Prepared(DropPartsSql), addPart = Prepared(AddPartSql), parts = Prepared(PartsSql);
        store_.Database().transaction();
        dropParts.bindValue(0, codes_.Whole());
        dropParts.exec();
        addPart.bindValue(0, codes_.Whole());
        addPart.bindValue(2, QuantityOfPart);
        for (int i = 0; i < Parts; ++i) {
            addPart.bindValue(1, codes_.Part(i));
            addPart.exec();
        }
        store_.Database().commit();
        parts.bindValue(0, codes_.Whole());
        return Count(std::move(parts));
    }

private:
    QSqlQuery Prepared(const char* sql) const {
        QSqlQuery query(store_.Database());
        query.prepare(QString::fromLatin1(sql));
        return query;
    }
    static qint64 Count(QSqlQuery query) {
        query.exec();
        return query.next() ? query.value(0).toLongLong() : 0;
    }

    Codes codes_;
    QtSqlStore store_;
};

Work ThroughQtSql(const BusyTill& till, qint64 (QtSqlWriter::*write)()) {
    const auto writer = std::make_shared<QtSqlWriter>(till);
    return [writer, write] { return (*writer.*write)(); };
}

}  // namespace

Figure PlacementFigure(const BusyTill& till) {
    return {.name = "place every product on the click table",
            .ours = [&till] { return PlaceOurs(till); },
            .yardsticks = {{"raw SQLite, statements only", [&till] { return ByHand(till, &HandWriter::Place); }, 2},
                           {"QSqlQuery, statements only", [&till] { return ThroughQtSql(till, &QtSqlWriter::Place); }}},
            .iterations = 1};
}

Figure RecipeFigure(const BusyTill& till) {
    return {.name = "save a recipe of 200 parts",
            .ours = [&till] { return SaveOurs(till); },
            .yardsticks = {{"raw SQLite by hand", [&till] { return ByHand(till, &HandWriter::Save); }, 1.3},
                           {"QSqlQuery, prepared", [&till] { return ThroughQtSql(till, &QtSqlWriter::Save); }}},
            .iterations = 20};
}

}  // namespace bench
