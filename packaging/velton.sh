#!/bin/sh
# Starts the till, or the owner's program under the name velton-manager. Everything of a register lies in the folder of
# its program, so each user has a copy of the program in a folder of his own: VELTON_FOLDER, or VELTON in his home. It is
# made on the first start, when the owner sets the shop up before the till comes, and the copy is renewed when a newer
# program was installed.
set -eu
umask 077
name=${0##*/}

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

give_up() {
    tell "$1"
    exit 1
}

programs=$(dirname -- "$(readlink -f -- "$0")")/../lib/velton
if [ "$name" = velton-manager ] && [ $# -gt 0 ]; then
    case $1 in -*) exec "$programs/velton-manager" "$@" ;; esac
    VELTON_FOLDER=$1
fi
if [ -z "${VELTON_FOLDER:-}" ]; then
    # A service or a bare session may have no HOME.
    HOME=${HOME:-$(getent passwd "$(id -u)" | cut -d: -f6)}
    [ -n "$HOME" ] || give_up "The user $(id -u) has no home folder. Say by VELTON_FOLDER where the register lies."
    export HOME
fi
folder=$(readlink -m -- "${VELTON_FOLDER:-$HOME/VELTON}")

# What a start that was cut short some time ago left beside the folder: it never was a register.
clear_abandoned() {
    for old in "$folder".new-??????; do
        if [ -d "$old" ] && [ ! -e "$old/opt.pos" ] && [ -n "$(find "$old" -prune -mmin +10)" ]; then
            rm -rf -- "$old"
        fi
    done
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
    find "$folder" -maxdepth 1 -type f -name 'velton.new-??????' -mmin +10 -delete
    new=$(mktemp -- "$folder/velton.new-XXXXXX") || return
    if cp -p -- "$programs/velton" "$new" && chmod 700 -- "$new" && sync -- "$new" &&
        mv -f -- "$new" "$folder/velton"; then return; fi
    rm -f -- "$new"
    return 1
}

if [ -e "$folder" ] && ! { [ -d "$folder" ] && [ -r "$folder" ] && [ -w "$folder" ] && [ -x "$folder" ]; }; then
    give_up "$folder is no folder in which the user $(id -un) may read and write."
fi
if [ ! -e "$folder/opt.pos" ]; then
    if [ -n "$(ls -A -- "$folder" 2>/dev/null)" ]; then
        give_up "The folder $folder is no register's: it has no opt.pos, but holds other things."
    fi
    clear_abandoned
    problem=$(make_folder 2>&1) || give_up "The folder $folder could not be made. $problem"
    is_new=yes
fi
if program_is_newer; then
    problem=$(renew_program 2>&1) || tell "The program in $folder could not be renewed. $problem"
fi
[ -x "$folder/velton" ] || give_up "The program in $folder cannot be started: it is missing, or programs may not run there."
if [ "$name" = velton-manager ]; then exec "$programs/velton-manager" "$folder"; fi
if [ -n "${is_new:-}" ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then "$programs/velton-manager" "$folder" || true; fi
exec "$folder/velton" "$@"
