#!/usr/bin/env bash
# Makes the pictures of the user guide anew: installs what is missing, builds, and plays the demo shop off-screen. The
# pictures of before stay when a screen has none, or anything else fails.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/setup.sh
build_programs velton-screens

pictures=$(mktemp -d)
trap 'rm -rf "$pictures"' EXIT
LC_ALL=en_US.UTF-8 build/release/bin/velton-screens "$pictures" >/dev/null
mkdir -p docs/screens
rm -f docs/screens/*.png
cp "$pictures"/*.png docs/screens/
echo "$(ls docs/screens | wc -l) pictures in docs/screens"
