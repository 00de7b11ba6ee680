#include "bench/MemoryUse.h"

#include <cstdio>
#include <fstream>
#include <string>

namespace bench {

void PrintMemoryUse() {
    std::ifstream rollup("/proc/self/smaps_rollup");
    long resident = 0, proportional = 0;
    for (std::string line; std::getline(rollup, line);) {
        std::sscanf(line.c_str(), "Rss: %ld", &resident);
        std::sscanf(line.c_str(), "Pss: %ld", &proportional);
    }
    std::printf("%ld %ld\n", resident, proportional);
    std::fflush(stdout);
}

}  // namespace bench
