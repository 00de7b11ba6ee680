#pragma once

#include "manager/Page.h"

namespace manager {

// A page whose boxes are stored together. What was changed and not stored is asked for once before the page is left.
class PageOfBoxes : public Page {
    Q_OBJECT

public:
    bool MayLeave() override;

protected:
    using Page::Page;

    // Shows in the boxes what is stored.
    virtual void Fill() = 0;
    // Says what cannot be stored, and gives false.
    virtual bool Store() = 0;
    // Where these boxes are.
    virtual const QWidget& Part() const { return *this; }

    void FillBoxes();
    bool StoreBoxes();
    // What they hold now is what is stored.
    void NoteBoxes();
    bool IsChanged() const;

private:
    QStringList stored_;
};

}  // namespace manager
