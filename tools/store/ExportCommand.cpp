#include "Commands.h"
#include "upkeep/goods/GoodsExport.h"

using namespace Qt::StringLiterals;

namespace tool {

void Export(const QString& folder, const QString& what, const QString& file) {
    const auto database = OpenStore(folder, Which::Main);
    if (what == u"goods") return upkeep::WriteSheet(file, upkeep::GoodsSheetOf(*database));
    if (what == u"customers") return upkeep::WriteSheet(file, upkeep::CustomersSheetOf(*database));
    upkeep::WriteSheet(file, upkeep::TableSheetOf(*database, what));
}

}  // namespace tool
