#!/usr/bin/env bash
# Brings the texts of the sources into the files of all languages: new ones are marked unfinished, and those that are
# gone are dropped. With a folder as argument the files there are brought up to date instead of these.
set -euo pipefail
cd "$(dirname "$0")/.."
folder=${1:-translations}
lupdate=$(command -v lupdate6 || command -v /usr/lib/qt6/bin/lupdate || command -v lupdate)
files=()
for language in bs de en hr sr_Latn; do files+=("$folder/velton_$language.ts"); done
"$lupdate" -silent -no-obsolete -locations none -source-language en -I src src tools -ts "${files[@]}"
