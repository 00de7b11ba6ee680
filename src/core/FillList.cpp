#include "core/FillList.h"

#include "values/Error.h"
#include "values/Format.h"

namespace {

using namespace std::chrono_literals;

// More than a screenful.
constexpr int FirstRows = 256;
// Rows that are rare among many others must not keep the screen from answering.
constexpr auto FirstPatience = 8ms;

class ListingRows : public forms::RowSource {
public:
    ListingRows(store::Listing rows, const std::vector<ListCell>& cells) : rows_(std::move(rows)) {
        for (const ListCell& cell : cells) {
            const int position = static_cast<int>(cells_.size());
            cells_.push_back({cell.field.isEmpty() ? position : rows_.Column(cell.field), cell.pattern});
        }
    }

    int WaitFor(int rows, std::chrono::milliseconds atMost) override {
        return static_cast<int>(rows_.WaitFor(rows, atMost));
    }
    bool IsWhole() const override { return rows_.IsWhole(); }
    QString Text(int row, int column) const override {
        try {
            const auto& [field, pattern] = cells_[static_cast<size_t>(column)];
            const values::Value value = rows_.At(row, field);
            return pattern.isEmpty() ? value.TextOrEmpty() : values::Format(value, pattern);
        } catch (const values::Error&) {
            return {};
        }
    }

private:
    struct Cell {
        int field;
        QString pattern;
    };

    store::Listing rows_;
    std::vector<Cell> cells_;
};

}  // namespace

void FillList(forms::ListView& list, store::Listing rows, const std::vector<ListCell>& cells,
              forms::ListView::Selects selects) {
    auto source = std::make_unique<ListingRows>(std::move(rows), cells);
    // Both would use the same connection, and nobody will see what is still to come.
    list.StopComingIn();
    source->WaitFor(FirstRows, FirstPatience);
    list.ShowRows(std::move(source), selects);
}
