// A cursor on a whole table costs the same, however long the table is.

#include "bench/Opening.h"

#include "bench/Figures.h"
#include "store/Database.h"

using namespace Qt::StringLiterals;

namespace bench {

Work OpenLines(const store::Place& place) {
    std::shared_ptr<store::Database> main = store::Database::Open(place, store::MainSchema());
    return [main] {
        auto lines = main->OpenRecordset(u"SELECT * FROM SalesDetails"_s);
        return qint64{lines.AtEOF() ? 0 : 1};
    };
}

Figure OpeningFigure(const Shop& big, const Shop& small) {
    return {.name = "open a cursor on all invoice lines",
            .ours = [&big] { return OpenLines(big.StorePath()); },
            .yardsticks = {{"the same on " + std::to_string(small.Size().lines) + " lines",
                            [&small] { return OpenLines(small.StorePath()); }, 1.5}},
            .warmUp = 100};
}

}  // namespace bench
