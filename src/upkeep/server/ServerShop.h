#pragma once

#include <QDate>

#include "store/Place.h"

namespace upkeep {

// What lies at a place on a server.
struct ShopThere {
    bool isThere = false;
    qint64 products = 0;
    qint64 invoices = 0;
    QDate lastDay;  // of an invoice; invalid where there is none
};
// A StoreError when the server can't be asked, or when what lies there is no shop.
ShopThere LookAtServer(const store::Place& place);

}  // namespace upkeep
