#include "upkeep/CheckRegister.h"

#include <QFile>

#include "store/StorePath.h"
#include "upkeep/Check.h"
#include "upkeep/Words.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

using StorePointer = std::unique_ptr<store::Database>;

// Told what is done, and asked whether to go on, also while a store works.
class Course {
public:
    explicit Course(const Progress& progress) : progress_(progress) {}

    void Begin(const QString& doing) {
        doing_ = doing;
        GoOn(progress_, doing_);
    }
    std::unique_ptr<store::Watch> WatchOver(store::Database& database) {
        if (!progress_) return nullptr;
        return std::make_unique<store::Watch>(database, [this] { return progress_(doing_); });
    }

private:
    Progress progress_;
    QString doing_;
};

FindingKind KindOf(const store::StoreError& error) {
    if (dynamic_cast<const store::ServerLost*>(&error) != nullptr) return FindingKind::StoreOutOfReach;
    switch (error.Number()) {
        case store::FileNotFound:
        case store::IniNotReadable:
            return FindingKind::StoreMissing;
        case store::HeldExclusively:
        case store::StoreLocked:
            return FindingKind::StoreHeld;
        case store::ReadOnly:
            return FindingKind::StoreReadOnly;
        default:
            return FindingKind::StoreDamaged;
    }
}

// The open store when it is sound; opening it has looked at its version, tables and columns.
StorePointer CheckStore(const QString& name, const std::function<StorePointer()>& open, Course& course,
                        Findings& findings) {
    const auto damage = [&](int number, const QString& what, FindingKind kind) {
        findings.Damage(number, u"%1: %2"_s.arg(name, what), kind);
    };
    try {
        StorePointer database = open();
        const auto watch = course.WatchOver(*database);
        const QStringList faults = database->CheckIntegrity();
        course.Begin(Words::tr("The stores are looked at."));  // a check that was left found nothing
        for (const QString& fault : faults) damage(store::NotAStore, fault, FindingKind::StoreDamaged);
        return faults.isEmpty() ? std::move(database) : nullptr;
    } catch (const store::StoreError& error) {
        if (error.Number() == store::Cancelled) throw;
        damage(error.Number(), error.Description(), KindOf(error));
        return nullptr;
    }
}

std::vector<Receipt> RibbonOf(const QString& folder) {
    QFile ribbon(folder + u"/invoices.txt"_s);
    if (!ribbon.exists()) return {};
    if (!ribbon.open(QIODevice::ReadOnly)) throw values::FileError(ribbon, values::FileWork::Reading);
    return ReadRibbon(ribbon);
}

bool WritesRibbon(store::Database* options) {
    if (options == nullptr) return false;
    auto row = options->OpenRecordset(u"SELECT TrakaRacunaFileDA FROM Options"_s);
    return !row.AtEOF() && !row[0].IsNull() && row[0].YesNo();
}

}  // namespace

Findings CheckRegister(const QString& folder, const Progress& progress) {
    Findings findings;
    Course course(progress);
    course.Begin(Words::tr("The stores are looked at."));
    // Before the store, so that what is printed meanwhile is in the store already.
    const std::vector<Receipt> ribbon = RibbonOf(folder);
    const StorePointer main = CheckStore(
        Words::tr("Main store"), [&] { return store::OpenMain(folder); }, course, findings);
    const StorePointer options = CheckStore(
        Words::tr("Options store"), [&] { return store::OpenOptions(folder); }, course, findings);
    if (main) {
        const auto watch = course.WatchOver(*main);
        course.Begin(Words::tr("The sales are read."));
        const SalesBook book = ReadSalesBook(*main);
        const DistinctKeys products = KeysOf(*main, {u"Products"_s, u"ProdCode"_s});
        CheckIndexes(*main, findings);
        course.Begin(Words::tr("The invoices are looked at."));
        CheckSales(*main, book, products, findings);
        course.Begin(Words::tr("The goods are looked at."));
        CheckGoods(*main, products, findings);
        course.Begin(Words::tr("The receipts are looked at."));
        CheckRibbon(ribbon, WritesRibbon(options.get()), book, findings);
        CheckPeriods(book, findings);
    }
    if (options) CheckSettings(*options, findings);
    return findings;
}

}  // namespace upkeep
