#include "manager/setup/SetupStep.h"

#include "manager/BoxesPage.h"

namespace manager {

QStringList SetupStep::Boxes() const {
    return BoxesOf(*this);
}

}  // namespace manager
