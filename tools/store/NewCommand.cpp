#include <QCoreApplication>

#include "Commands.h"
#include "delivery/Delivery.h"

using namespace Qt::StringLiterals;

namespace tool {

void New(const QString& folder, bool withDemo) {
    delivery::MakeProgramFolder(folder, withDemo, QCoreApplication::applicationDirPath() + u"/velton"_s);
}

}  // namespace tool
