#pragma once

#include <QString>
#include <optional>

// The register's number in a typed text, read up to the first character that belongs to no number. One beyond 16 bits,
// with which the till could not start again, is told under `title`, and there is none.
std::optional<qint16> RegisterNumber(const QString& typed, const QString& title);
