#!/usr/bin/env bash
# Installs what is missing, builds, makes a demo shop if there is none, and starts the till. Without a display it plays
# a working day through the real screens off-screen and prints the receipt and the report.
set -euo pipefail
cd "$(dirname "$0")"
. packaging/setup.sh
build_programs velton velton-manager velton-store velton-demo

shop=${1:-demo}
[ -e "$shop/ORVA.pos" ] || build/release/bin/velton-store new "$shop" --demo
cmp -s build/release/bin/velton "$shop/velton" || cp build/release/bin/velton "$shop/velton"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "Log in as kasir with the password 1234."
    exec "$shop/velton"
fi
echo "No display here: a working day is played off-screen."
exec build/release/bin/velton-demo
