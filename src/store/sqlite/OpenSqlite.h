#pragma once

#include <memory>

#include "store/Engine.h"

namespace store::sqlite {

// Opens the file of a store; the errors are those of Database::Open.
std::unique_ptr<Engine> OpenFile(const QString& path, const Schema& schema);
// Makes an empty file a store without rows; errors tell of `path`, where it is to lie.
void BuildFile(const QString& file, const QString& path, const Schema& schema);

}  // namespace store::sqlite
