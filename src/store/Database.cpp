#include "store/Database.h"

#include "store/Creation.h"
#include "store/ListingImpl.h"
#include "store/RecordsetImpl.h"
#include "store/Words.h"
#include "store/postgres/OpenServer.h"
#include "store/sqlite/OpenSqlite.h"

namespace store {

struct Database::Internals {
    Internals(Engine& engine, const Schema& itsSchema)
        : schema(itsSchema),
          compiler(schema, [&engine](const auto& plan, const auto& text) { engine.Prepare(plan, text); }) {}

    dialect::Query CompileSelect(const QString& query);

    Schema schema;
    dialect::Compiler compiler;
    std::shared_ptr<SideEngine> side;  // once a listing was opened
};

Database::Database(std::unique_ptr<Engine> engine, const Schema& schema)
    : engine_(std::move(engine)), internals_(std::make_unique<Internals>(*engine_, schema)) {}

Database::~Database() = default;

std::unique_ptr<Database> Database::Open(const Place& place, const Schema& schema) {
    auto engine = place.IsServer() ? postgres::OpenSchema(place, schema) : sqlite::OpenFile(place.Path(), schema);
    return std::unique_ptr<Database>(new Database(std::move(engine), schema));
}

std::unique_ptr<Database> Database::Create(const Place& place, const Schema& schema) {
    Creation(place, schema).Finish();
    return Open(place, schema);
}

dialect::Query Database::Internals::CompileSelect(const QString& query) {
    dialect::Query compiled = compiler.Compile(query);
    if (compiled.plan->kind != dialect::Plan::Kind::Select)
        throw StoreError(NotSupported, Words::tr("An action query gives no rows."));
    return compiled;
}

Recordset Database::OpenRecordset(const QString& query) {
    dialect::Query compiled = internals_->CompileSelect(query);
    if (compiled.plan->table == nullptr) return SnapshotOf(std::move(compiled));
    return Recordset(std::make_unique<Recordset::Impl>(*engine_, internals_->compiler, std::move(compiled)));
}

Recordset Database::OpenSnapshot(const QString& query) {
    return SnapshotOf(internals_->CompileSelect(query));
}

Recordset Database::SnapshotOf(dialect::Query query) {
    RowBlock rows;
    engine_->ReadAll(query, rows);
    return Recordset(std::make_unique<Recordset::Impl>(*engine_, internals_->compiler, std::move(query),
                                                       std::make_unique<SnapshotRows>(std::move(rows))));
}

// What is not committed yet is seen by this connection only.
Listing Database::OpenListing(const QString& query) {
    dialect::Query compiled = internals_->CompileSelect(query);
    auto& side = internals_->side;
    if (!side && !engine_->InTransaction())
        if (auto engine = engine_->OpenBeside()) side = std::make_shared<SideEngine>(std::move(engine));
    if (side && !engine_->InTransaction()) {
        const BeginWait begin = engine_->AskWhileWaiting({});
        engine_->AskWhileWaiting(begin);
        return Listing(std::make_unique<Listing::Impl>(std::move(compiled), side, begin));
    }
    return ListingOf(std::move(compiled));
}

Listing Database::ReadListing(const QString& query) {
    return ListingOf(internals_->CompileSelect(query));
}

Listing Database::ListingOf(dialect::Query query) {
    RowBlock rows;
    engine_->ReadAll(query, rows);
    return Listing(std::make_unique<Listing::Impl>(std::move(query), std::move(rows)));
}

qint64 Database::Execute(const QString& query) {
    const dialect::Query compiled = internals_->compiler.Compile(query);
    if (compiled.plan->kind == dialect::Plan::Kind::Select)
        throw StoreError(NotSupported, Words::tr("A SELECT cannot be executed."));
    return engine_->Execute(compiled);
}

const Schema& Database::GetSchema() const {
    return internals_->schema;
}

QString Database::EngineVersion() {
    return engine_->Version();
}

QStringList Database::CheckIntegrity() {
    return engine_->CheckIntegrity();
}

QStringList Database::MissingIndexes() {
    return engine_->MissingIndexes(internals_->schema);
}

void Database::TakeAlone() {
    engine_->TakeAlone();
}

QString Database::PrepareToRetire() {
    return engine_->PrepareToRetire();
}

void Database::Retire() {
    engine_->Retire();
}

void Database::RetireFor(const Place& successor) {
    engine_->RetireFor(successor);
}

void Database::AddAllOf(Database& other) {
    AddAllOf(*other.engine_);
}

void Database::AddAllOf(Engine& other) {
    other.ReadStore(internals_->schema,
                    [this](const Table& table, const Engine::StoredRows& rows) { engine_->AddRows(table, rows); });
}

void Database::BackupTo(const QString& path) {
    engine_->BackupTo(path);
}

QString Database::ExplainPlan(const QString& query) {
    return engine_->Explain(internals_->compiler.Compile(query));
}

Database::Batch::Batch(Database& database) : database_(database) {
    database_.engine_->Begin();
}

Database::Batch::~Batch() {
    if (open_) database_.engine_->Rollback();
}

void Database::Batch::Commit() {
    if (!open_) return;
    database_.engine_->Commit();
    open_ = false;
}

Watch::Watch(Database& database, std::function<bool()> goesOn) : database_(database) {
    database_.engine_->AskWhileWorking(std::move(goesOn));
}

Watch::~Watch() {
    database_.engine_->AskWhileWorking({});
}

Patience::Patience(Database& database, std::function<std::function<bool()>()> begin)
    : database_(database), before_(database.engine_->AskWhileWaiting(std::move(begin))) {}

Patience::~Patience() {
    database_.engine_->AskWhileWaiting(std::move(before_));
}

Burst::Burst(Database& database) : database_(database) {
    database_.engine_->BeginBurst();
}

Burst::~Burst() {
    try {
        End();
    } catch (const values::Error&) {
        // A destructor has nobody to tell; whoever needs to know calls End().
    }
}

void Burst::End() {
    if (!open_) return;
    open_ = false;
    database_.engine_->EndBurst();
}

}  // namespace store
