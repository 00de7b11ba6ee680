#pragma once

#include "bench/Harness.h"
#include "store/Place.h"

namespace bench {

// Opens a cursor on all invoice lines and stands on the first.
Work OpenLines(const store::Place& place);

}  // namespace bench
