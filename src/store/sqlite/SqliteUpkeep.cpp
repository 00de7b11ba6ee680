#include <sqlite3.h>

#include "store/Words.h"
#include "store/sqlite/Disk.h"
#include "store/sqlite/PreparedPlan.h"
#include "store/sqlite/SqliteError.h"
#include "store/sqlite/SqliteSchema.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace store::sqlite {

namespace {

// A few milliseconds of the engine's work.
constexpr int StepsBetweenQuestions = 50'000;
// In kilobytes. Nobody is asked while the engine sorts what it has in memory, so that is little at a time.
constexpr int MemoryWhileAsked = 2'000;

QStringList FaultsOf(Connection& connection) {
    QStringList faults;
    try {
        Statement check(connection.Handle(), "PRAGMA integrity_check");
        while (check.Step()) faults += check.Text(0);
    } catch (const StoreError& error) {
        faults += error.Description();
    }
    if (faults == QStringList{u"ok"_s}) faults.clear();
    return faults;
}

// The copy is made to stand without a log beside it.
void CopyInto(const QString& path, Connection& source) {
    Connection copy(path, true, 0ms);
    copy.Run("PRAGMA synchronous = OFF");  // it is brought to the disk as a whole
    copy.CopyFrom(source);
    copy.Run("PRAGMA journal_mode = DELETE");
}

void CheckCopy(const QString& path) {
    Connection copy(path, false, 0ms);
    const QStringList faults = FaultsOf(copy);
    if (!faults.empty()) throw StoreError(NotAStore, Words::tr("The copy is damaged: %1").arg(faults.first()));
}

}  // namespace

void SqliteEngine::AskWhileWorking(std::function<bool()> goesOn) {
    goesOn_ = std::move(goesOn);
    const auto ask = [](void* self) { return static_cast<SqliteEngine*>(self)->goesOn_() ? 0 : 1; };
    sqlite3_progress_handler(Handle(), goesOn_ ? StepsBetweenQuestions : 0, ask, this);
    connection_->UseMemory(goesOn_ ? MemoryWhileAsked : UsualMemory);
}

BeginWait SqliteEngine::AskWhileWaiting(BeginWait begin) {
    return connection_->AskWhileWaiting(std::move(begin));
}

// What was put in the place of these files is another store.
std::unique_ptr<Engine> SqliteEngine::OpenBeside() {
    if (isLost_ || !files_.AreInPlace()) return nullptr;
    try {
        return std::make_unique<SqliteEngine>(connection_->OpenBeside(), files_.StorePath());
    } catch (const StoreError&) {
        return nullptr;
    }
}

QString SqliteEngine::Version() {
    return u"SQLite "_s + QString::fromLatin1(sqlite3_libversion());
}

QStringList SqliteEngine::CheckIntegrity() {
    return FaultsOf(*connection_);
}

QStringList SqliteEngine::MissingIndexes(const Schema& schema) {
    return sqlite::MissingIndexes(*connection_, schema);
}

void SqliteEngine::BackupTo(const QString& path) {
    if (InTransaction()) throw StoreError(NotSupported, Words::tr("No copy can be made while a batch is open."));
    NewFile file(path);
    try {
        CopyInto(file.Path(), *connection_);
        CheckCopy(file.Path());
    } catch (const SqliteError& error) {
        ThrowCode(error.Code(), error.Message(), Words::tr("copying to %1").arg(path));
    }
    file.Finish();
}

QString SqliteEngine::Explain(const dialect::Query& query) {
    const dialect::Plan& plan = *query.plan;
    const Pieces& pieces = PreparedOf(query).sql;
    const bool isSelect = plan.kind == dialect::Plan::Kind::Select;
    const std::string sql = isSelect ? SelectSql(pieces, plan.table != nullptr) : ActionSql(plan.kind, pieces);
    Statement statement(Handle(), "EXPLAIN QUERY PLAN " + sql);
    constexpr int detail = 3;
    QStringList steps;
    while (statement.Step()) steps += statement.Text(detail);
    return steps.join(u'\n');
}

}  // namespace store::sqlite
