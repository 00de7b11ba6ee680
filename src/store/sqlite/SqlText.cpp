#include "store/sqlite/SqlText.h"

namespace store::sqlite {

std::string Quoted(const QString& name) {
    QString doubled = name;
    doubled.replace(u'"', QStringLiteral("\"\""));
    return '"' + doubled.toStdString() + '"';
}

std::string Parameter(int number) {
    return '?' + std::to_string(number);
}

}  // namespace store::sqlite
