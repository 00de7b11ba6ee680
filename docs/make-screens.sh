#!/usr/bin/env bash
# Makes the pictures of the guides anew: installs what is missing, builds, and plays the demo shop off-screen, once more
# in each language that has a user guide. The pictures of before stay when a screen has none, or anything else fails.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/setup.sh
build_programs velton-screens

pictures=$(mktemp -d)
trap 'rm -rf "$pictures"' EXIT
LC_ALL=en_US.UTF-8 build/release/bin/velton-screens "$pictures" >/dev/null
for guide in docs/user-guide.*.md; do
    language=$(basename "$guide" .md) language=${language#user-guide.}
    LC_ALL=${language}_${language^^}.UTF-8 build/release/bin/velton-screens --language "$language" "$pictures/all-$language" >/dev/null
    mkdir "$pictures/$language"
    for shown in $(grep -o "(screens/$language/[^)]*" "$guide"); do
        cp "$pictures/all-$language/${shown##*/}" "$pictures/$language/"
    done
    rm -r "$pictures/all-$language"
done
rm -rf docs/screens
cp -r "$pictures" docs/screens
chmod 755 docs/screens
echo "$(find docs/screens -name '*.png' | wc -l) pictures in docs/screens"
