#pragma once

#include "manager/Page.h"

namespace manager {

// What stands in the boxes of a part of a page, to be held against what was shown there.
QStringList BoxesOf(const QWidget& part);

// A page whose boxes are stored together. What was changed and not stored is asked for once before the page is left.
class BoxesPage : public Page {
    Q_OBJECT

public:
    bool MayLeave() override;

protected:
    using Page::Page;

    // Shows in the boxes what is stored.
    virtual void Fill() = 0;
    virtual void Store() = 0;

    void FillBoxes();
    void StoreBoxes();

private:
    QStringList filled_;
};

}  // namespace manager
