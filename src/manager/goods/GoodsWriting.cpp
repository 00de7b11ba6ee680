#include "manager/goods/GoodsWriting.h"

#include "core/dbModule.h"
#include "forms/LongWork.h"
#include "forms/MsgBox.h"
#include "manager/Texts.h"
#include "output/Folder.h"
#include "upkeep/Findings.h"
#include "upkeep/goods/GoodsUndo.h"
#include "upkeep/goods/UndoFile.h"
#include "upkeep/goods/WriteGoods.h"

using namespace Qt::StringLiterals;
using upkeep::RowKind;

namespace manager {

bool GoodsWriting::Do(const std::function<void(const std::function<bool()>& goesOn)>& work) {
    try {
        forms::LongWork longWork(&page_);
        work([&longWork] { return longWork.GoesOn(); });
        return true;
    } catch (const values::Error& error) {
        // Whoever left it knows.
        if (error.Number() != store::Cancelled) forms::Tell(error.Description(), forms::Icon::Warning, page_.Caption());
        return false;
    }
}

bool GoodsWriting::Write(const QString& title, const upkeep::Preview& preview) {
    const size_t added = preview.Count(RowKind::New), changed = preview.Count(RowKind::Changed);
    QStringList question{added > 0 ? tr("Write %1 new and %2 changed goods?").arg(added).arg(changed)
                                   : tr("Write %1 changed goods?").arg(changed)};
    if (const size_t refused = preview.Count(RowKind::Refused); refused > 0)
        question += tr("Refused rows stay out of it: %1.").arg(refused);
    if (!forms::Ask(question.join(u'\n'), page_.Caption())) return false;
    upkeep::Written written;
    if (!Do([&](const auto& goesOn) {
            written = upkeep::WriteGoods(MainStore(), output::ProgramFolder(), title, preview.Changes(), goesOn);
        }))
        return false;
    QStringList told{added > 0 ? tr("Written: %1 new, %2 changed.").arg(written.added).arg(written.changed)
                               : tr("Written: %1 changed.").arg(written.changed)};
    if (!written.movedMeanwhile.isEmpty())
        told += tr("Sold since the look, and taken off the new quantity too: %1.")
                    .arg(upkeep::FirstFew(written.movedMeanwhile));
    forms::Inform(told.join(u'\n'), page_.Caption());
    return true;
}

bool GoodsWriting::CanTakeBack() {
    return upkeep::HasUndo(output::ProgramFolder());
}

bool GoodsWriting::TakeBack() {
    std::optional<upkeep::UndoRecord> last;
    if (!Do([&](const auto&) { last = upkeep::LastUndo(output::ProgramFolder()); }) || !last) return false;
    const QString question = tr("Take back '%1' of %2? Goods that were new go, and others get their old values back. "
                                "What was sold since stays sold.")
                                 .arg(last->title, MomentText(last->time));
    if (!forms::Ask(question, page_.Caption())) return false;
    upkeep::Undone undone;
    if (!Do([&](const auto&) { undone = upkeep::UndoGoods(MainStore(), output::ProgramFolder()); })) return false;
    QStringList told{tr("Taken back: %1 restored, %2 removed.").arg(undone.restored).arg(undone.removed)};
    constexpr qsizetype most = 10;
    told += undone.kept.first(std::min(most, undone.kept.size()));
    if (undone.kept.size() > most) told += tr("So it is with %1 more.").arg(undone.kept.size() - most);
    forms::Inform(told.join(u'\n'), page_.Caption());
    return true;
}

}  // namespace manager
