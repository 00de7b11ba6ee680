// A cursor on a whole table costs the same, however long the table is.

#include "bench/Figures.h"
#include "store/Database.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

Work Open(const Shop& shop) {
    std::shared_ptr<store::Database> main = store::Database::Open(shop.StorePath(), store::MainSchema());
    return [main] {
        auto lines = main->OpenRecordset(u"SELECT * FROM SalesDetails"_s);
        return qint64{lines.AtEOF() ? 0 : 1};
    };
}

}  // namespace

Figure OpeningFigure(const Shop& big, const Shop& small) {
    return {.name = "open a cursor on all invoice lines",
            .ours = [&big] { return Open(big); },
            .yardsticks = {{"the same on " + std::to_string(small.Size().lines) + " lines",
                            [&small] { return Open(small); }, 1.5}},
            .warmUp = 100};
}

}  // namespace bench
