#pragma once

#include "store/dialect/Plan.h"

namespace store::postgres {

// How a store in a file goes over the rows of a query over one table, which decides about those that its ORDER BY finds
// equal, or about all where it has none. Reports and lists rest on it, so a server is asked for the same.
struct FileOrder {
    const dialect::BoundExpr* first = nullptr;  // what comes before the identity
    bool isBackwards = false;                   // the identity falls
};

FileOrder OrderOfTheFile(const dialect::Plan& plan);

}  // namespace store::postgres
