#include "store/sqlite/Migrations.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "store/StoreError.h"

using namespace Qt::StringLiterals;

namespace store::sqlite {

namespace {

// Version 2 of the main store: reports look for periods by number and day, and the click table for its products.
void MainTo2(SQLite::Database& database) {
    database.exec(R"(CREATE INDEX "SalesByGrupni" ON "Sales" ("Grupni"))");
    database.exec(R"(CREATE INDEX "SalesByDateGenerated" ON "Sales" ("DateGenerated"))");
    database.exec(R"(CREATE INDEX "SalesByDateStoped" ON "Sales" ("DateStoped"))");
    database.exec(R"(CREATE INDEX "ProductsByTab" ON "Products" ("Tab"))");
}

// Version 2 of the options store: the product list can wait for the first search.
void OptionsTo2(SQLite::Database& database) {
    database.exec(R"(ALTER TABLE "Options" ADD COLUMN "PrikaziOdmah" INTEGER DEFAULT 0)");
}

const QList<Migration>& StepsOf(const Schema& schema) {
    static const QList<Migration> none;
    static const QList<Migration> mainSteps{MainTo2};
    static const QList<Migration> optionsSteps{OptionsTo2};
    if (schema.name == MainSchema().name) return mainSteps;
    if (schema.name == OptionsSchema().name) return optionsSteps;
    return none;
}

}  // namespace

Migration MigrationFrom(const Schema& schema, int version) {
    const QList<Migration>& steps = StepsOf(schema);
    if (version < 1 || version > steps.size())
        throw StoreError(NotAStore, u"The store is of version %1, which this program does not know."_s.arg(version));
    return steps[version - 1];
}

}  // namespace store::sqlite
