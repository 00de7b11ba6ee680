#!/usr/bin/env bash
# Builds the benchmarks, makes the big store once below build/bench-data, measures, and prints one table. Arguments go
# to velton-bench: --quick, or flags of Google Benchmark such as --benchmark_filter=lookup.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/setup.sh
install_missing $program_packages $test_packages
cmake --preset release >/dev/null
cmake --build --preset release --target velton-bench
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
exec build/release/bin/velton-bench build/bench-data "$@"
