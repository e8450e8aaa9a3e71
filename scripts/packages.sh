# Debian's packages for building and for testing, and a function that installs those that are missing. To be sourced.

# shellcheck disable=SC2034  # the arrays are for whoever sources this
build_packages=(
    g++ cmake ninja-build pkg-config
    qtbase5-dev qtbase5-dev-tools qttools5-dev qttools5-dev-tools libxcb1-dev
    qttranslations5-l10n qt5-style-plugin-plastique fonts-dejavu-core
)
test_packages=(
    xvfb openbox xdotool wmctrl xclip x11-utils nginx-light zlib1g-dev
    qt6-base-dev libgl-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n
    python3 clang clang-format clang-tidy libclang-rt-14-dev valgrind strace faketime tzdata imagemagick
)
bench_packages=(libssl-dev openssl clang g++-mingw-w64-x86-64-posix xvfb openbox x11-utils)
windows_packages=(
    g++-mingw-w64-x86-64-posix nsis
    dpkg-dev debian-archive-keyring make perl python3
)
windows_test_packages=(
    wine64 fonts-wine xvfb openbox xdotool x11-utils xclip imagemagick
    git python3-pefile clang-tidy strace
)

# install_missing PACKAGE...: quiet when nothing is missing.
install_missing() {
    local missing=() package
    for package in "$@"; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
    done
    [[ ${#missing[@]} -gt 0 ]] || return 0

    local as_root=()
    if [[ $(id -u) -ne 0 ]]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing, and there is no sudo to install them with: ${missing[*]}" >&2
            return 1
        }
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}" >&2
    local log
    log=$(mktemp)
    if ! { "${as_root[@]}" apt-get update && "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1 </dev/null; then
        cat "$log" >&2
        return 1
    fi
    rm -f "$log"
}
