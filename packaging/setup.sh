# Sourced by run.sh and test.sh: the Debian packages that the build needs, and the build itself.

program_packages="g++ cmake ninja-build ccache pkg-config qt6-base-dev libqt6svg6 libsqlitecpp-dev libsqlite3-dev
    libpq-dev libcsv-dev libicu-dev libxlsxwriter-dev libzint-dev libcli11-dev libgl1-mesa-dev fonts-roboto"
test_packages="libgtest-dev libgmock-dev libbenchmark-dev libqt6sql6-sqlite postgresql poppler-utils zbar-tools dpkg-dev file"

# install_missing PACKAGE...
install_missing() {
    local missing=""
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed" || missing="$missing $package"
    done
    [ -z "$missing" ] && return
    echo "Installing:$missing"
    local root=""
    [ "$(id -u)" = 0 ] || root="sudo"
    $root apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $root apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# The programs alone, which need nothing of the tests.
build_programs() {
    install_missing $program_packages
    cmake --preset release -DBUILD_TESTING=OFF -DVELTON_BENCH=OFF >/dev/null
    cmake --build --preset release --target "$@"
}

# Everything, on the build machine with warnings as errors.
build_all() {
    install_missing $program_packages $test_packages
    cmake --preset ${CI:+strict-}release >/dev/null
    cmake --build --preset release
}
