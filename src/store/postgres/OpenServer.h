#pragma once

#include <memory>

#include "store/Engine.h"
#include "store/Place.h"

namespace store::postgres {

// Opens the schema of a store on a server; the errors are those of Database::Open.
std::unique_ptr<Engine> OpenSchema(const Place& place, const Schema& schema);
// Makes one, within a batch that is left open; 3204 where there is one.
std::unique_ptr<Engine> CreateSchema(const Place& place, const Schema& schema);

}  // namespace store::postgres
