#include "store/SqlText.h"

namespace store {

std::string Quoted(const QString& name) {
    QString doubled = name;
    doubled.replace(u'"', QStringLiteral("\"\""));
    return '"' + doubled.toStdString() + '"';
}

void AppendTo(std::string& list, const std::string& piece) {
    if (!list.empty()) list += ", ";
    list += piece;
}

}  // namespace store
