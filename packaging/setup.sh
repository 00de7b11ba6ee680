# Sourced by run.sh and test.sh: the Debian packages that the build needs, and the build itself.

packages="g++ cmake ninja-build ccache pkg-config qt6-base-dev libqt6svg6 libqt6sql6-sqlite libsqlitecpp-dev
    libsqlite3-dev libcli11-dev libgtest-dev libgmock-dev libbenchmark-dev libgl1-mesa-dev fonts-roboto poppler-utils
    dpkg-dev file"

install_missing() {
    local missing=""
    for package in $packages; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed" || missing="$missing $package"
    done
    [ -z "$missing" ] && return
    echo "Installing:$missing"
    local root=""
    [ "$(id -u)" = 0 ] || root="sudo"
    $root apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $root apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# build_program [TARGET...]: everything, or these programs.
build_program() {
    install_missing
    local strict=OFF
    [ -n "${CI:-}" ] && strict=ON
    cmake --preset release -DVELTON_WERROR=$strict >/dev/null
    cmake --build --preset release ${1:+--target "$@"}
}
