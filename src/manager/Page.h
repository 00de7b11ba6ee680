#pragma once

#include "forms/Form.h"
#include "upkeep/Progress.h"

namespace manager {

// A page of the manager's window: a form within it, which is made when its name is first chosen and keeps what was done
// in it. Form_Activate, each time it comes to the front, is where it looks at the shop anew.
class Page : public forms::Form {
    Q_OBJECT

public:
    // What stands beside other pages' names, and above the page.
    virtual QString Name() const { return Caption(); }
    // Whether something is still under way beside the window, after which the page will look otherwise.
    virtual bool IsBusy() const { return false; }
    // Asked before another page takes its place and before the window closes; false when it has to stay in front.
    virtual bool MayLeave() { return true; }

Q_SIGNALS:
    // What the window tells below its pages may be another now: the last backup, the shop's name.
    void ShopChanged();
    // The stores are to be closed and others opened in their place: the other pages go, unless one of them wants to
    // stay, which makes `goes` false.
    void ShopGoes(bool* goes);

protected:
    using forms::Form::Form;

    // Puts these behind all others of the page in the order of the Tab key, in which parts that are added in code come
    // last.
    void TabLast(std::initializer_list<QWidget*> controls);

    // Works on the shop's folder beside the window (Beside.h) while neither this program nor a page of it has the
    // stores open; whatever becomes of it, they are opened again; where that fails, it is told. False when another
    // page has to stay.
    bool RunWithoutShop(const QString& doing, const std::function<void(const upkeep::Progress&)>& work);
};

}  // namespace manager
