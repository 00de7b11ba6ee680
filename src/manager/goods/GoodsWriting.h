#pragma once

#include <QCoreApplication>
#include <functional>

#include "manager/Page.h"
#include "upkeep/goods/GoodsChange.h"

namespace manager {

// What the pages that change goods have in common: they work where the user can leave them, ask before they write, and
// take back. None throws what a person can do something about: that is told in a box.
class GoodsWriting {
    Q_DECLARE_TR_FUNCTIONS(manager::GoodsWriting)

public:
    explicit GoodsWriting(Page& page) : page_(page) {}

    // Long work over the page, with the question whether it goes on. False when it was left or could not be done.
    bool Do(const std::function<void(const std::function<bool()>& goesOn)>& work);
    // Asks, writes and tells. False when nothing was written.
    bool Write(const QString& title, const upkeep::Preview& preview);
    // Asks, takes back the last writing and tells. False when nothing was taken back.
    bool TakeBack();
    static bool CanTakeBack();

private:
    Page& page_;
};

}  // namespace manager
