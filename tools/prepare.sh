# Sourced by run, test and .ci/run: installs what is missing and builds a preset.
# The caller has set -euo pipefail and stands in the project's root.

say() { printf '== %s\n' "$*"; }

BUILD_PACKAGES="g++ cmake ninja-build pkg-config qtbase5-dev qttools5-dev qttools5-dev-tools
    rapidjson-dev libavformat-dev libavcodec-dev libswscale-dev libavutil-dev fonts-dejavu-core"
QT6_PACKAGES="qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools"
# What the tests need besides: a streaming server of another make than the player, Chinese glyphs,
# what judges documents by schemas.
TEST_PACKAGES="fonts-droid-fallback libgstrtspserver-1.0-dev gstreamer1.0-plugins-base gstreamer1.0-plugins-good
    gstreamer1.0-plugins-ugly glib-networking binutils python3-jsonschema"
# What a screen reader asks, on a display and a bus of its own.
READER_PACKAGES="python3-pyatspi at-spi2-core dbus xvfb xauth"
# What spreads files over machines, and two of these.
FLEET_PACKAGES="parallel openssh-server openssh-client"
# The compiler of the fuzzers, and its sanitizers.
FUZZ_PACKAGES="clang libclang-rt-14-dev"
# What asks whether the packages are sound, and what makes a clean root for them.
PACKAGE_PACKAGES="lintian mmdebstrap"
# A compiler for Windows with its headers.
WINDOWS_PACKAGES="g++-mingw-w64-x86-64-posix"

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1; then
        sudo "$@"
    else
        echo "Installing packages needs root or sudo: $*" >&2
        return 1
    fi
}

# install_missing PACKAGE...: asks Debian's package system for those that are not there yet.
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    say "Installing ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null
}

# build_preset NAME: configures once, then builds what changed.
build_preset() {
    say "Building the $1 preset"
    [ -f "build/$1/build.ninja" ] || cmake --preset "$1" >/dev/null
    cmake --build --preset "$1"
}

# has_display: whether windows can be shown to somebody.
has_display() { [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; }
