#include "manager/goods/PreviewRows.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace manager {

PreviewRows::PreviewRows(std::shared_ptr<const upkeep::Preview> preview, const std::vector<upkeep::RowKind>& kinds)
    : preview_(std::move(preview)) {
    for (size_t row = 0; row < preview_->rows.size(); ++row)
        if (kinds.empty() || std::ranges::find(kinds, preview_->rows[row].kind) != kinds.end()) shown_.push_back(row);
}

QString PreviewRows::Text(int row, int column) const {
    const upkeep::PreviewRow& shown = At(row);
    switch (column) {
        case Line:
            return shown.line > 0 ? QString::number(shown.line) : QString();
        case Kind:
            return upkeep::KindName(shown.kind);
        case Code:
            return shown.code;
        case Name:
            return shown.name;
        default:
            return preview_->Told(shown).join(u"; ");
    }
}

}  // namespace manager
