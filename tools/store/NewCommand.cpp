#include <QCoreApplication>

#include "Commands.h"
#include "delivery/Delivery.h"

using namespace Qt::StringLiterals;

namespace tool {

void New(const QString& folder, bool withDemo, const QString& server) {
    delivery::MakeProgramFolder(
        folder,
        {.withDemo = withDemo, .server = server, .program = QCoreApplication::applicationDirPath() + u"/velton"_s});
}

}  // namespace tool
