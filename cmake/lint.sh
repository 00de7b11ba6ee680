#!/usr/bin/env bash
# Reads every source of src and tools, or those whose path matches PATTERN, without precompiled headers: what a file forgot to
# include, and the faults that .clang-tidy lists. Some twenty minutes on two cores.
#   cmake/lint.sh [PATTERN]
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/setup.sh
install_missing $program_packages $test_packages clang-tidy
cmake --preset lint >/dev/null
made=$(ninja -C build/lint -t targets all | sed -n 's/^\(.*ui_[^:]*\.h\|.*\.inc\):.*/\1/p')
ninja -C build/lint $made >/dev/null
run-clang-tidy -quiet -p build/lint -header-filter "^$PWD/(src|tools)/" "${1:-^$PWD/(src|tools)/.*\\.cpp$}"
