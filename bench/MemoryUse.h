#pragma once

namespace bench {

// Of this process, shared libraries counted in full, in kB.
long ResidentMemory();
// Prints the memory of this process as one line "RSS PSS GROWTH", in kB; the growth is that of RSS over `early`.
void PrintMemoryUse(long early = ResidentMemory());

}  // namespace bench
