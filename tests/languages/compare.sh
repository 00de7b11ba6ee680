#!/usr/bin/env bash
# compare.sh ROOT: fails where the files of the languages are not those that translations/update.sh would leave.
set -euo pipefail
fresh=$(mktemp -d)
trap 'rm -rf "$fresh"' EXIT
cp "$1"/translations/*.ts "$fresh"
"$1"/translations/update.sh "$fresh"
for file in "$fresh"/*.ts; do
    diff -u0 "$1/translations/${file##*/}" "$file" || differ=yes
done
[ -z "${differ:-}" ] || { echo "Run translations/update.sh, and translate what is unfinished then."; exit 1; }
echo "The languages have the texts of the sources."
