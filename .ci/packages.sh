# shellcheck shell=bash disable=SC2034
# What the scripts need from Debian 12, and how they get it. Sourced by run, test, bench and .ci/run.

build_packages=(
    cmake ninja-build ccache g++
    qt6-base-dev qt6-svg-dev qt6-l10n-tools
    qt6-tools-dev libqt6opengl6-dev
    fonts-inter
    webp qt6-image-formats-plugins
    libbenchmark-dev
)
# The Windows services are cross-compiled and run under Wine; gestures on real windows want a window manager.
test_packages=(g++-mingw-w64-x86-64-posix wine64 xvfb xauth openbox xdotool)
# The application is used through the accessibility bus.
test_packages+=(at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi)
bench_packages=(python3)
# Fuzzing is clang's; what its programs are linked with comes separately. The documentation is doxygen's.
check_packages=(clang-format clang-tidy clang libclang-rt-dev doxygen)

# need_packages <package>...: installs those that are missing. Where all are there, nothing is asked of the network.
need_packages() {
    if ! command -v apt-get >/dev/null; then
        echo "This is not Debian: the following, or what matches them here, have to be there: $*"
        return
    fi

    local present missing=() package
    present=" $(dpkg-query --show --showformat='${db:Status-Status}:${Package} ' "$@" 2>/dev/null || true)"
    for package in "$@"; do
        [[ $present == *" installed:$package "* ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    local as_root=()
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            echo "To be installed by root: apt-get install ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing what is missing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install --yes --no-install-recommends "${missing[@]}" >/dev/null
}
