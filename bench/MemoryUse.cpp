#include "bench/MemoryUse.h"

#include <cstdio>
#include <fstream>
#include <string>

namespace bench {

namespace {

struct Memory {
    long resident = 0;
    long proportional = 0;
};

Memory MemoryNow() {
    std::ifstream rollup("/proc/self/smaps_rollup");
    Memory memory;
    for (std::string line; std::getline(rollup, line);) {
        std::sscanf(line.c_str(), "Rss: %ld", &memory.resident);
        std::sscanf(line.c_str(), "Pss: %ld", &memory.proportional);
    }
    return memory;
}

}  // namespace

long ResidentMemory() {
    return MemoryNow().resident;
}

void PrintMemoryUse(long early) {
    const Memory memory = MemoryNow();
    std::printf("%ld %ld %ld\n", memory.resident, memory.proportional, memory.resident - early);
    std::fflush(stdout);
}

}  // namespace bench
