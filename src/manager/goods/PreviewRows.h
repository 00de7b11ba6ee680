#pragma once

#include <memory>

#include "forms/RowSource.h"
#include "upkeep/goods/GoodsChange.h"

namespace manager {

// The rows of a preview for a list, all or those of some kinds: line, kind, code, name, what changes.
class PreviewRows : public forms::RowSource {
public:
    enum Column { Line, Kind, Code, Name, Changes };

    PreviewRows(std::shared_ptr<const upkeep::Preview> preview, const std::vector<upkeep::RowKind>& kinds = {});

    int WaitFor(int, std::chrono::milliseconds) override { return static_cast<int>(shown_.size()); }
    bool IsWhole() const override { return true; }
    QString Text(int row, int column) const override;

protected:
    const upkeep::PreviewRow& At(int row) const { return preview_->rows[shown_[static_cast<size_t>(row)]]; }
    const upkeep::Preview& Whole() const { return *preview_; }

private:
    std::shared_ptr<const upkeep::Preview> preview_;
    std::vector<size_t> shown_;
};

}  // namespace manager
