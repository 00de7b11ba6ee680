#!/usr/bin/env bash
# Installs the Debian package in a clean system and works with it there as an ordinary user: the till starts, makes its
# folder and lets a cashier in, the demo day reads as it always does, an upgrade under a running till and a removal
# leave the shop alone. Needs root and a Debian mirror.
#
#     packaging/test-package.sh [PACKAGE.deb [MIRROR]]
set -euo pipefail
cd "$(dirname "$0")/.."

package=${1:-$(find build/release -maxdepth 1 -name 'velton_*.deb' -printf '%T@ %p\n' | sort -rn | head -1 | cut -d' ' -f2-)}
display=:77
root=$(mktemp -d /var/tmp/velton-package-XXXXXX)
home=/home/kasir
folder=$home/VELTON
started=()

finish() {
    for pid in "${started[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait
    for mount in tmp/.X11-unix dev/pts proc; do
        if mountpoint -q "$root/$mount"; then umount "$root/$mount"; fi
    done
    rm -rf --one-file-system "$root"
}
trap finish EXIT

step() { printf '\n== %s\n' "$1"; }
ok() { printf 'ok: %s\n' "$1"; }
fail() {
    printf 'FAILED: %s\n' "$1" >&2
    exit 1
}

inside() { chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive "$@"; }
# As the cashier, who has nothing but a home and a display.
as_user() {
    inside runuser -u kasir -- /usr/bin/env -i PATH=/usr/bin:/bin HOME=$home LANG=C.UTF-8 DISPLAY=$display \
        sh -c 'cd && exec "$@"' sh "$@"
}

prepare() {
    local missing=()
    for tool in debootstrap xvfb xdotool; do
        dpkg-query -W -f='${Status}' "$tool" 2>/dev/null | grep -q "ok installed" || missing+=("$tool")
    done
    [ ${#missing[@]} = 0 ] || apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
    debootstrap --variant=minbase bookworm "$root" ${2:+"$2"} >"$root.log" || fail "no clean system: $(tail -3 "$root.log")"
    rm -f "$root.log"
    chmod 755 "$root"
    mount -t proc proc "$root/proc"
    inside useradd --create-home --shell /bin/sh kasir
}

install_package() {
    cp "$1" "$root/tmp/velton.deb"
    inside apt-get install -y -qq --no-install-recommends /tmp/velton.deb >"$root/tmp/install.log" 2>&1 ||
        fail "not installed: $(tail -5 "$root/tmp/install.log")"
}

open_display() {
    Xvfb $display -screen 0 1366x768x24 -ac -nolisten tcp >/dev/null 2>&1 &
    started+=($!)
    for _ in $(seq 50); do
        [ -S "/tmp/.X11-unix/X${display#:}" ] && break
        sleep 0.1
    done
    mkdir -p "$root/tmp/.X11-unix"
    mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
}

# The window with this title, waited for.
window() {
    DISPLAY=$display timeout 30 xdotool search --sync --onlyvisible --name "^$1\$" | head -1
}
keys() {
    DISPLAY=$display xdotool "$@"
    sleep 0.5
}

# Sets `till` to the process of the program itself, which the launcher becomes.
start_till() {
    as_user velton &
    started+=($!)
    window "VELTON - LOGIN" >/dev/null || fail "no login comes up"
    till=$(running_copy)
    [ -n "$till" ] || fail "the program does not run from $folder"
}

running_copy() {
    local exe
    for exe in /proc/[0-9]*/exe; do
        case $(readlink "$exe" 2>/dev/null) in
            "$root$folder/velton" | "$root$folder/velton (deleted)") basename "$(dirname "$exe")" ;;
        esac
    done
}

stop_till() {
    kill "$till"
    while [ -d "/proc/$till" ]; do sleep 0.1; done
}

log_in() {
    keys type "kasir"
    keys key Tab
    keys type "1234"
    keys key Return
    window "VELTON POS" >/dev/null || fail "the sales screen does not come up"
}

same_as() { as_user sha256sum "$@" | sha256sum; }

# The same package again, as a later version with another program in it.
later_package() {
    local unpacked=$root/tmp/later
    dpkg-deb -R "$package" "$unpacked"
    sed -i 's/^Version: .*/&+later/' "$unpacked/DEBIAN/control"
    printf 'later' >>"$unpacked/usr/lib/velton/velton"
    (cd "$unpacked" && find usr -type f -exec md5sum {} + >DEBIAN/md5sums)
    dpkg-deb -b --root-owner-group "$unpacked" "$root/tmp/later.deb" >/dev/null
    rm -rf "$unpacked"
}

step "a clean system"
prepare "$@"
ok "$(sed -n 's/^PRETTY_NAME=//p' "$root/etc/os-release"), $(inside dpkg-query -f '.\n' -W | wc -l) packages"

step "install $package"
install_package "$package"
ok "$(inside dpkg-query -W velton), $(inside dpkg-query -f '.\n' -W | wc -l) packages now"
for program in velton velton-manager velton-store velton-demo; do
    if inside ldd "/usr/lib/velton/$program" | grep "not found"; then fail "$program lacks a library"; fi
done
ok "no program lacks a library"
[ -s "$root/usr/share/icons/hicolor/48x48/apps/velton.png" ] || fail "no icon"
[ -s "$root/usr/share/applications/velton.desktop" ] || fail "no menu entry"
ok "menu entry and icon"

step "the demo day"
as_user velton-demo day >"$root/tmp/day.txt" 2>&1 || fail "$(tail -3 "$root/tmp/day.txt")"
for file in invoices.txt lpt1.prn fiscal.txt Report.txt; do
    cmp "tests/data/demo/$file" "$root$home/day/$file" || fail "$file reads otherwise"
done
ok "receipts, spool file, fiscal records and report are as they always are"
as_user velton-store check day
ok "its stores are sound"

step "the first start"
open_display
as_user velton &
started+=($!)
window "VELTON Manager" >/dev/null || fail "a new shop is not set up first"
ok "the owner's program comes up before the till"
keys key ctrl+q
window "VELTON - LOGIN" >/dev/null || fail "no login comes up behind it"
till=$(running_copy)
ok "$folder is made, the login stands there"
ok "it is $(inside stat -c "%U's, mode %a" $folder)"
cmp "$root/usr/lib/velton/velton" "$root$folder/velton" || fail "the copy is another program"
[ -z "$(find "$root$home" -maxdepth 1 -name 'VELTON.*')" ] || fail "something is left beside the folder"
log_in
ok "kasir is let in"
as_user velton-store sql VELTON "SELECT UserID, Count(*) AS N FROM Login GROUP BY UserID"

step "an upgrade under the running till"
printf '[ports]\nlpt1=file:receipts.prn\n' >"$root$folder/ports.ini"
settings=$(same_as VELTON/opt.pos VELTON/ports.ini)
later_package
install_package "$root/tmp/later.deb"
ok "$(inside dpkg-query -W velton)"
[ -d "/proc/$till" ] || fail "the till has stopped"
as_user velton-store backup VELTON backup.pos
as_user velton-store check VELTON
ok "the till works on, and is backed up and looked over meanwhile"
as_user velton &
second=$!
window "VELTON" >/dev/null || fail "a second start is not refused"
keys key Return
wait "$second" || fail "a second start does not end"
ok "a second start is refused"
cmp "$root/usr/lib/velton/velton" "$root$folder/velton" || fail "the copy was not renewed"
[ "$(readlink "/proc/$till/exe")" = "$root$folder/velton (deleted)" ] || fail "the running till was touched"
ok "the copy is renewed, the running till keeps the file that it was started from"
stop_till
start_till
log_in
[ "$(same_as VELTON/opt.pos VELTON/ports.ini)" = "$settings" ] || fail "settings or ports have changed"
[ "$(as_user velton-store sql VELTON "SELECT Count(*) AS N FROM Login" | tail -1)" = 2 ] || fail "logins are lost"
ok "the later program starts on the same shop and settings"
stop_till
as_user velton-store check VELTON

step "the package is removed"
inside apt-get remove -y -qq velton >/dev/null 2>&1
for path in bin/velton bin/velton-manager bin/velton-store lib/velton; do
    if [ -e "$root/usr/$path" ]; then fail "/usr/$path is left behind"; fi
done
for file in ORVA.pos opt.pos ports.ini velton; do
    [ -s "$root$folder/$file" ] || fail "the user's $file is gone"
done
ok "the user's folder is still there"

step "all is well"
