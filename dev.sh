#!/usr/bin/env bash
# Front door: installs what is missing from Debian packages, configures, builds, then
#   ./dev.sh run [workbench options]   opens the workbench (or renders PNGs without a display)
#   ./dev.sh test                      runs the tests through ctest, then again in the sanitizer
#                                      build (clang, ASan+UBSan) with a short run of each fuzzer
#   ./dev.sh build                     builds only
# Paths given to the workbench are taken from where it is called, not from the checkout.
# DEV_SKIP_BUILD=1 runs or tests the build as it is.
set -euo pipefail
CALLER_DIR=$PWD
ROOT=$(cd "$(dirname "$0")" && pwd)
cd "$ROOT"

BUILD_DIR=${BUILD_DIR:-build}
case "$BUILD_DIR" in
    /*) ;;
    *) BUILD_DIR="$ROOT/$BUILD_DIR" ;;
esac
SANITIZER_BUILD_DIR=${SANITIZER_BUILD_DIR:-build-asan}
case "$SANITIZER_BUILD_DIR" in
    /*) ;;
    *) SANITIZER_BUILD_DIR="$ROOT/$SANITIZER_BUILD_DIR" ;;
esac
PACKAGES=(
    g++ cmake ninja-build pkg-config ccache
    qt6-base-dev qt6-base-dev-tools qt6-qpa-plugins
    qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
    libbenchmark-dev libdxflib-dev
    fonts-ipafont-gothic
    clang libclang-rt-14-dev
)

missing_packages() {
    local p
    for p in "${PACKAGES[@]}"; do
        if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
            printf '%s\n' "$p"
        fi
    done
}

install_packages() {
    local missing
    mapfile -t missing < <(missing_packages)
    [ "${#missing[@]}" -eq 0 ] && return 0
    echo "Installing from Debian packages: ${missing[*]}"
    local sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "error: need root or sudo to install ${missing[*]}" >&2; exit 1; }
        sudo=(sudo)
    fi
    export DEBIAN_FRONTEND=noninteractive
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

build() {
    [ "${DEV_SKIP_BUILD:-}" = 1 ] && return 0
    export CCACHE_BASEDIR="$ROOT" # shares cached objects between checkouts
    install_packages
    local launcher=()
    command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=Release "${launcher[@]}" >/dev/null
    cmake --build "$BUILD_DIR" --parallel "$(nproc)"
}

# The same sources with clang, ASan and UBSan, and the libFuzzer targets.
build_sanitized() {
    local launcher=()
    command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    cmake -S . -B "$SANITIZER_BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_CXX_COMPILER=clang++ -DKS_BUILD_FUZZ=ON "${launcher[@]}" >/dev/null
    cmake --build "$SANITIZER_BUILD_DIR" --parallel "$(nproc)"
}

has_display() {
    [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]
}

run_workbench() {
    local exe="$BUILD_DIR/app/kesto-settings"
    cd "$CALLER_DIR"
    if has_display; then
        exec "$exe" "$@"
    fi
    local shots="$BUILD_DIR/screenshots" arg
    for arg in "$@"; do
        case "$arg" in --screenshot | --screenshot=*) shots="" ;; esac
    done
    # A --drawing of the caller's comes last and wins over the sample.
    local defaults=(--drawing "$ROOT/app/samples/civil-sample.xml")
    [ -n "$shots" ] && defaults+=(--screenshot "$shots")
    QT_QPA_PLATFORM=offscreen "$exe" "${defaults[@]}" "$@"
    [ -z "$shots" ] || echo "No display found: the dialogs were rendered to PNG in $shots"
}

run_tests() {
    QT_QPA_PLATFORM=offscreen ctest --test-dir "$1" --output-on-failure \
        --parallel "$(nproc)" --timeout 600
}

cmd=${1:-run}
[ $# -gt 0 ] && shift
case "$cmd" in
    run) build; run_workbench "$@" ;;
    test) build; run_tests "$BUILD_DIR"; build_sanitized; run_tests "$SANITIZER_BUILD_DIR" ;;
    build) build ;;
    *) echo "usage: $0 run|test|build" >&2; exit 2 ;;
esac
