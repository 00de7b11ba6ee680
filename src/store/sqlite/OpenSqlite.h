#pragma once

#include <memory>

#include "store/Engine.h"

namespace store::sqlite {

// Opens or makes the file of a store; the errors are those of Database::Open and Database::Create.
std::unique_ptr<Engine> OpenFile(const QString& path, const Schema& schema);
std::unique_ptr<Engine> CreateFile(const QString& path, const Schema& schema);

}  // namespace store::sqlite
