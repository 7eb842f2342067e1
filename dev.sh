#!/usr/bin/env bash
# Front door: installs what is missing from Debian packages, configures, builds, then
#   ./dev.sh run [workbench options]   opens the workbench (or renders PNGs without a display)
#   ./dev.sh test                      runs the tests through ctest, then again in the sanitizer
#                                      build (clang, ASan+UBSan) with a short run of each fuzzer
#   ./dev.sh build                     builds only
set -euo pipefail
cd "$(dirname "$0")"

BUILD_DIR=${BUILD_DIR:-build}
SANITIZER_BUILD_DIR=${SANITIZER_BUILD_DIR:-build-asan}
PACKAGES=(
    g++ cmake ninja-build pkg-config ccache
    qt6-base-dev qt6-base-dev-tools qt6-qpa-plugins
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
    export CCACHE_BASEDIR="$PWD" # shares cached objects between checkouts
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
    if has_display; then
        exec "$exe" "$@"
    fi
    local shots="$BUILD_DIR/screenshots"
    QT_QPA_PLATFORM=offscreen "$exe" --screenshot "$shots" --drawing app/samples/civil-sample.xml "$@"
    echo "No display found: the dialogs were rendered to PNG in $(cd "$shots" && pwd)"
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
