#!/bin/sh
# Starts the till. Everything of a register lies in the folder of its program, so each user has a copy of the program in
# a folder of his own: VELTON_FOLDER, or VELTON in his home. It is made on the first start, and the copy is renewed when
# a newer program was installed.
set -eu

programs=$(dirname -- "$(readlink -f -- "$0")")/../lib/velton
folder=$(readlink -m -- "${VELTON_FOLDER:-$HOME/VELTON}")

# Started from a menu, nobody reads what is written to a terminal.
tell() {
    printf 'velton: %s\n' "$1" >&2
    if [ -t 2 ] || [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then return; fi
    if command -v zenity >/dev/null; then
        zenity --error --title=VELTON --no-markup --text="$1"
    elif command -v kdialog >/dev/null; then
        kdialog --title VELTON --error "$1"
    elif command -v xmessage >/dev/null; then
        xmessage -title VELTON "$1"
    fi || true
}

# Made beside its place and moved there when it is whole, so that a start that is cut short leaves no half of a folder.
make_folder() {
    mkdir -p -- "$(dirname -- "$folder")" && new=$(mktemp -d -- "$folder.new-XXXXXX") || return
    if "$programs/velton-store" new "$new" && sync -- "$new/velton" && mv -T -- "$new" "$folder"; then return; fi
    rm -rf -- "$new"
    # Two starts at once: the other one was quicker.
    [ -e "$folder/opt.pos" ]
}

program_is_newer() {
    [ ! -e "$folder/velton" ] || [ -n "$(find "$programs/velton" -newer "$folder/velton")" ]
}

# A running copy goes on with the file that it was started from. The stores and settings are left alone.
renew_program() {
    new=$(mktemp -- "$folder/velton.new-XXXXXX") || return
    if cp -p -- "$programs/velton" "$new" && sync -- "$new" && mv -f -- "$new" "$folder/velton"; then return; fi
    rm -f -- "$new"
    return 1
}

if [ ! -e "$folder/opt.pos" ]; then
    if [ -n "$(ls -A -- "$folder" 2>/dev/null)" ]; then
        tell "The folder $folder is no register's: it has no opt.pos, but holds other things."
        exit 1
    fi
    if ! problem=$(make_folder 2>&1); then
        tell "The folder $folder could not be made. $problem"
        exit 1
    fi
fi
if program_is_newer && ! renew_program; then
    tell "The program in $folder could not be renewed."
fi
exec "$folder/velton" "$@"
