#pragma once

namespace bench {

// Of this process, shared libraries counted in full, in kB.
long ResidentMemory();
// Prints the memory of this process as one line "RSS PSS", in kB.
void PrintMemoryUse();

}  // namespace bench
