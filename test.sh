#!/usr/bin/env bash
# Installs what is missing, builds everything, and runs all tests off-screen.
set -euo pipefail
cd "$(dirname "$0")"
. packaging/setup.sh
build_all
ctest --test-dir build/release --output-on-failure --parallel "$(nproc)" "$@"
