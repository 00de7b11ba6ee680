#!/usr/bin/env bash
# compare.sh ROOT: fails where the files of the languages are not those that translations/update.sh would leave.
set -euo pipefail
fresh=$(mktemp -d)
trap 'rm -rf "$fresh"' EXIT
cp "$1"/translations/*.ts "$fresh"
"$1"/translations/update.sh "$fresh"
diff -u0 "$1/translations" "$fresh" --exclude='*.md' --exclude='*.sh' | grep '^[-+]' | head -50 && exit 1
echo "The languages have the texts of the sources."
