#include "Commands.h"
#include "store/StorePath.h"

namespace tool {

std::unique_ptr<store::Database> OpenStore(const QString& folder, Which which) {
    if (which == Which::Options) return store::Database::Open(store::OptionsPlace(folder), store::OptionsSchema());
    return store::Database::Open(store::MainPlace(folder), store::MainSchema());
}

}  // namespace tool
