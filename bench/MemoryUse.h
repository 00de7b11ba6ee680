#pragma once

namespace bench {

// Prints the memory of this process as one line "RSS PSS", in kB.
void PrintMemoryUse();

}  // namespace bench
