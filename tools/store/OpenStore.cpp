#include "Commands.h"
#include "store/StorePath.h"

namespace tool {

std::unique_ptr<store::Database> OpenStore(const QString& folder, Which which) {
    return which == Which::Options ? store::OpenOptions(folder) : store::OpenMain(folder);
}

}  // namespace tool
