#include "store/Migrations.h"

#include "store/StoreError.h"
#include "store/Words.h"

using namespace Qt::StringLiterals;

namespace store {

namespace {

// Version 2 of the main store: reports look for periods by number and day, and the click table for its products.
Migration MainTo2() {
    return {AddedIndex{u"Sales"_s, {.columns = {u"Grupni"_s}}},
            AddedIndex{u"Sales"_s, {.columns = {u"DateGenerated"_s}}},
            AddedIndex{u"Sales"_s, {.columns = {u"DateStoped"_s}}}, AddedIndex{u"Products"_s, {.columns = {u"Tab"_s}}}};
}

// Version 2 of the options store: the product list can wait for the first search.
Migration OptionsTo2() {
    return {AddedColumn{u"Options"_s, {u"PrikaziOdmah"_s, Type::YesNo, false}}};
}

const QList<Migration>& StepsOf(const Schema& schema) {
    static const QList<Migration> none;
    static const QList<Migration> mainSteps{MainTo2()};
    static const QList<Migration> optionsSteps{OptionsTo2()};
    if (schema.name == MainSchema().name) return mainSteps;
    if (schema.name == OptionsSchema().name) return optionsSteps;
    return none;
}

}  // namespace

const Migration& MigrationFrom(const Schema& schema, int version) {
    const QList<Migration>& steps = StepsOf(schema);
    if (version < 1 || version > steps.size())
        throw StoreError(NotAStore,
                         Words::tr("The store is of version %1, which this program does not know.").arg(version));
    return steps[version - 1];
}

}  // namespace store
