# shellcheck shell=bash
# What the scripts share. Sourced, not run; moves to the root of the project.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1

# Debian's packages by what they are needed for. The scripts beside this file read these lists.
# shellcheck disable=SC2034
{
    BUILD_PACKAGES=(g++ cmake ninja-build pkg-config libdxflib-dev)
    QT5_PACKAGES=(qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5-dev
        qttranslations5-l10n)
    QT6_PACKAGES=(qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-svg-dev
        libgl1-mesa-dev qt6-translations-l10n)
    DEBIAN_PACKAGES=(file dpkg-dev fakeroot lintian desktop-file-utils appstream)
    TEST_PACKAGES=(libgtest-dev libgmock-dev xvfb xauth openbox locales fonts-dejavu-core python3)
    DISPLAY_PACKAGES=(xvfb xauth xdotool imagemagick fonts-dejavu-core)
    CLANG_PACKAGES=(clang libclang-rt-14-dev llvm)
    CHECK_PACKAGES=(git clang clang-format clang-tidy codespell shellcheck doxygen python3)
    BENCHMARK_PACKAGES=(libbenchmark-dev python3 git)
}

# step TEXT: says what is done next.
step() {
    printf '\n==> %s\n' "$1"
}

# die TEXT: stops with a message.
die() {
    printf '\n%s: %s\n' "$(basename "$0")" "$1" >&2
    exit 1
}

# as_root COMMAND...: runs a command that changes the machine.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        die "'$*' needs root, and there is no sudo"
    fi
}

is_installed() {
    [ "$(dpkg-query --show --showformat='${db:Status-Abbrev}' "$1" 2>/dev/null)" = 'ii ' ]
}

# install_packages PACKAGE...: installs those that are missing, if any.
install_packages() {
    command -v apt-get >/dev/null || die "only Debian's packages are known here; install: $*"

    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    step "Installing ${missing[*]}"
    as_root apt-get -o DPkg::Lock::Timeout=300 update -qq || die "the package lists could not be updated"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 \
        install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null || die "the packages could not be installed"
}

# build_app: builds the program and sets PROGRAM to its path.
build_app() {
    install_packages "${BUILD_PACKAGES[@]}" "${QT5_PACKAGES[@]}"
    step "Building the program in build/run"
    cmake -S . -B build/run -G Ninja -DCMAKE_BUILD_TYPE=Release -DDXFVIEWER_BUILD_TESTS=OFF ||
        die "the configuration failed"
    cmake --build build/run --target dxfviewer_app || die "the build failed"
    # shellcheck disable=SC2034
    PROGRAM=$PWD/build/run/app/dxfviewer
}

# photograph PICTURE DRAWING [STROKES]: shows the drawing in the program that build_app has built, on
# a display of its own, and takes a picture of the window.
photograph() {
    install_packages "${DISPLAY_PACKAGES[@]}"
    xvfb-run --auto-servernum --server-args='-screen 0 1280x960x24' \
        scripts/photograph "$PROGRAM" "$@" || die "the window could not be photographed"
}
