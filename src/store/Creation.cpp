#include "store/Creation.h"

#include "store/Engine.h"
#include "store/postgres/OpenServer.h"
#include "store/sqlite/Disk.h"
#include "store/sqlite/OpenSqlite.h"

namespace store {

struct Creation::File {
    explicit File(const QString& path) : file(path) {}
    sqlite::NewFile file;
};

Creation::Creation(const Place& place, const Schema& schema) {
    if (place.IsServer()) {
        store_.reset(new Database(postgres::CreateSchema(place, schema), schema));
        return;
    }
    file_ = std::make_unique<File>(place.Path());
    sqlite::BuildFile(file_->file.Path(), place.Path(), schema);
    store_ = Database::Open(file_->file.Path(), schema);
    store_->engine_->Begin();
}

Creation::~Creation() = default;

void Creation::Finish() {
    store_->engine_->Commit();
    if (!file_) return;
    store_.reset();
    file_->file.Finish();
}

}  // namespace store
