#pragma once

#include <functional>
#include <vector>

#include "manager/Page.h"

namespace manager {

// A page of the window, by the name that its user reads; it is made when it is first chosen.
struct PageEntry {
    QString className;
    QString name;
    std::function<Page*(QWidget* parent)> make;
};

// In the order in which they stand.
std::vector<PageEntry> AllPages();
// Those that work without the main store.
std::vector<PageEntry> PagesWithoutShop();

}  // namespace manager
