#include "store/Creation.h"
#include "store/SqlText.h"
#include "store/postgres/PostgresEngine.h"
#include "store/postgres/ServerSchema.h"

using namespace Qt::StringLiterals;

namespace store::postgres {

std::unique_ptr<Engine> PostgresEngine::OpenBeside() {
    try {
        auto beside = std::make_unique<Connection>(connection_->At());
        beside->SetPatience(WorkingPatience);
        return std::make_unique<PostgresEngine>(std::move(beside), schema_);
    } catch (const StoreError&) {
        return nullptr;
    }
}

QString PostgresEngine::Version() {
    return u"PostgreSQL "_s + connection_->Read("SELECT current_setting('server_version')").Text(0, 0);
}

// Every row is read whole, so that what the server finds damaged shows.
QStringList PostgresEngine::CheckIntegrity() {
    QStringList faults;
    for (const Table& table : schema_.tables) {
        try {
            const std::string name = Quoted(table.name);
            const std::string key = Quoted(KeyColumn(table));
            const Answer answer =
                connection_->Read("SELECT max(length(t::text)), max(" + key + ") > pg_sequence_last_value(" +
                                  SequenceSql(table) + ") FROM " + name + " AS t");
            if (answer.IsTrue(0, 1)) faults += u"%1: the next number is taken already"_s.arg(table.name);
        } catch (const ServerLost&) {
            throw;
        } catch (const StoreError& error) {
            faults += table.name + u": "_s + error.Description();
        }
    }
    return faults;
}

QStringList PostgresEngine::MissingIndexes(const Schema& schema) {
    return postgres::MissingIndexes(*connection_, schema);
}

// The copy is a store in a file, which can stand in for one.
void PostgresEngine::BackupTo(const QString& path) {
    if (InTransaction()) throw StoreError(NotSupported, u"No copy can be made while a batch is open."_s);
    Creation copy(path, schema_);
    copy.Store().AddAllOf(*this);
    const QStringList faults = copy.Store().CheckIntegrity();
    if (!faults.empty()) throw StoreError(NotAStore, u"The copy is damaged: %1"_s.arg(faults.first()));
    copy.Finish();
}

// The indexes that it can follow, as it would in a large store: of small tables it reads all rows.
QString PostgresEngine::Explain(const dialect::Query& query) {
    const ServerQuery& prepared = PreparedOf(query);
    Answer answer;
    connection_->ReadTogether([&] {
        connection_->Read("SET LOCAL enable_seqscan = off");
        connection_->Read("SET LOCAL enable_bitmapscan = off");
        answer = connection_->Read("EXPLAIN (COSTS off) " + prepared.whole, Bound(query, prepared.slots.size()));
    });
    QStringList steps;
    for (int row = 0; row < answer.Rows(); ++row) steps += answer.Text(row, 0).trimmed();
    return steps.join(u'\n');
}

}  // namespace store::postgres
